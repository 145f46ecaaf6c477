// SPDX-License-Identifier: MIT
#include "dialog/options/ipp_twins.h"

#include "platform/foundation/units.h"
#include "platform/printing/cups_ppd.h"

#include <QMap>
#include <QStringList>

#include <cmath>
#include <optional>

namespace halvern {

namespace {

constexpr double kHundredthsPerMillimetre = 100.0;

std::optional<QString> textOf(ppd_file_t* file, const char* keyword, const QString& name)
{
    const ppd_attr_t* found = ppdFindAttr(file, keyword, name.toUtf8().constData());
    return found ? std::optional(QString::fromUtf8(found->value)) : std::nullopt;
}

int hundredths(float points)
{
    return int(std::lround(double(points) * kMillimetresPerInch / kPointsPerInch * kHundredthsPerMillimetre));
}

// "Custom.100x150mm": what the printer does not list has its size in its name.
QString customSize(ppd_file_t* file, const QString& choice)
{
    const ppd_size_t* size = ppdPageSize(file, choice.toUtf8().constData());
    return size ? QStringLiteral("{x-dimension=%1 y-dimension=%2}")
                      .arg(hundredths(size->width))
                      .arg(hundredths(size->length))
                : QString();
}

} // namespace

bool takesCollectionsAsText(ppd_file_t* file)
{
    return file && ppdFindAttr(file, kIppHandsOn, nullptr);
}

QString ippValueOf(ppd_file_t* file, const QString& key, const QString& choice)
{
    return textOf(file, kIppValue, key + QLatin1Char('.') + choice).value_or(choice);
}

OptionValues asIppOptions(ppd_file_t* file, const OptionValues& options)
{
    if (!file || !ppdFindAttr(file, kIppAttribute, nullptr))
        return options;
    OptionValues result;
    QMap<QString, QStringList> collections;
    for (const OptionValue& option : options) {
        const std::optional<QString> attribute = textOf(file, kIppAttribute, option.key);
        if (!attribute) {
            result.append(option);
            continue;
        }
        QString value = ippValueOf(file, option.key, option.value);
        if (option.key == QLatin1StringView("PageSize") &&
            option.value.startsWith(QLatin1StringView("Custom.")))
            value = customSize(file, option.value);
        if (value.isEmpty())
            continue;
        const QString collection = attribute->section(QLatin1Char('/'), 0, 0);
        const QString member = attribute->section(QLatin1Char('/'), 1);
        if (member.isEmpty())
            result.append({*attribute, value});
        else
            collections[collection].append(member + QLatin1Char('=') + value);
    }
    for (auto it = collections.cbegin(); it != collections.cend(); ++it)
        result.append({it.key(), QLatin1Char('{') + it->join(QLatin1Char(' ')) + QLatin1Char('}')});
    return result;
}

} // namespace halvern
