// SPDX-License-Identifier: MIT
#include "dialog/options/ipp_twins.h"

#include "dialog/options/ppd_lookup.h"
#include "platform/foundation/units.h"
#include "platform/printing/cups_ppd.h"

#include <QMap>
#include <QRegularExpression>
#include <QStringList>

#include <cmath>
#include <optional>

namespace halvern {

namespace {

constexpr double kHundredthsPerMillimetre = 100.0;

std::optional<QString> textOf(ppd_file_t* file, const char* keyword, const QString& name)
{
    const ppd_attr_t* found = ppdFindAttr(file, keyword, name.toUtf8().constData());
    return found ? std::optional(fromTwin(found->value)) : std::nullopt;
}

int hundredths(float points)
{
    return int(std::lround(double(points) * kMillimetresPerInch / kPointsPerInch * kHundredthsPerMillimetre));
}

// What is no keyword is a name, whose blanks and quotes are its own.
QString asMember(const QString& value)
{
    static const QRegularExpression kPlain(QStringLiteral("^[A-Za-z0-9._+-]+$"));
    if (value.startsWith(QLatin1Char('{')) || kPlain.match(value).hasMatch())
        return value;
    QString quoted = value;
    quoted.replace(QLatin1Char('\\'), QLatin1StringView("\\\\"));
    quoted.replace(QLatin1Char('\''), QLatin1StringView("\\'"));
    return QLatin1Char('\'') + quoted + QLatin1Char('\'');
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

QByteArray asTwin(const QString& value)
{
    return value.toUtf8().replace("%", "%25").replace("\"", "%22");
}

QString fromTwin(const QByteArray& text)
{
    return QString::fromUtf8(QByteArray::fromPercentEncoding(text));
}

bool takesCollectionsAsText(ppd_file_t* file)
{
    return file && ppdFindAttr(file, kIppHandsOn, nullptr);
}

QString ippValueOf(ppd_file_t* file, const QString& key, const QString& choice)
{
    return textOf(file, kIppValue, key + QLatin1Char('.') + choice).value_or(choice);
}

QString choiceOfIppValue(ppd_file_t* file, const QString& key, const QString& value)
{
    const ppd_option_t* option = ppd_lookup::option(file, key);
    for (int i = 0; option && i < option->num_choices; ++i) {
        const QString choice = QString::fromUtf8(option->choices[i].choice);
        if (ippValueOf(file, key, choice) == value)
            return choice;
    }
    return {};
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
            collections[collection].append(member + QLatin1Char('=') + asMember(value));
    }
    for (auto it = collections.cbegin(); it != collections.cend(); ++it)
        result.append({it.key(), QLatin1Char('{') + it->join(QLatin1Char(' ')) + QLatin1Char('}')});
    return result;
}

} // namespace halvern
