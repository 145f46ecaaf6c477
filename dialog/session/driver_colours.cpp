// SPDX-License-Identifier: MIT
#include "dialog/session/driver_colours.h"

#include "dialog/options/ppd_model.h"
#include "platform/printing/cups_ppd.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <optional>

// A resource in a static library has to be asked for, outside any namespace.
static void initColourDrivers()
{
    Q_INIT_RESOURCE(colour_drivers);
}

namespace halvern {

namespace {

const QString kColorModel = QStringLiteral("ColorModel");

struct DriverRow {
    QString option;
    QString choice;
    bool isEverywhere = false;
};

QList<DriverRow> readRows(QLatin1StringView list)
{
    initColourDrivers();
    QFile file(QStringLiteral(":/halvern/colour-drivers.json"));
    QList<DriverRow> rows;
    if (!file.open(QIODevice::ReadOnly))
        return rows;
    const QJsonArray array = QJsonDocument::fromJson(file.readAll())[list].toArray();
    for (const QJsonValue& row : array)
        rows.append({row[QLatin1StringView("option")].toString(), row[QLatin1StringView("choice")].toString(),
                     row[QLatin1StringView("everywhere")].toBool()});
    return rows;
}

// The number that the chosen mode's code has for its colour space; nothing where it has none.
std::optional<int> rasterSpace(const PpdModel& model)
{
    static const QRegularExpression pattern(QStringLiteral("/cupsColorSpace\\s+(\\d{1,3})\\b"));
    const ppd_choice_t* choice =
        ppd_lookup::listedChoice(model.file(), kColorModel, model.value(kColorModel));
    if (!choice || !choice->code)
        return std::nullopt;
    const QRegularExpressionMatch match = pattern.match(QString::fromLatin1(choice->code));
    return match.hasMatch() ? std::optional(match.captured(1).toInt()) : std::nullopt;
}

} // namespace

OptionValues withoutDriverColours(const PpdModel& model)
{
    static const QList<DriverRow> rows = readRows(QLatin1StringView("rows"));
    OptionValues values;
    for (const DriverRow& row : rows) {
        if (row.isEverywhere || ppd_lookup::listedChoice(model.file(), row.option, row.choice))
            values.append({row.option, row.choice});
    }
    return values;
}

bool printsGray(const PpdModel& model)
{
    if (const ppd_attr_t* device = ppdFindAttr(model.file(), "ColorDevice", nullptr);
        device && QLatin1StringView(device->value) == QLatin1StringView("False"))
        return true;
    if (const std::optional<int> space = rasterSpace(model))
        return *space == CUPS_CSPACE_W || *space == CUPS_CSPACE_K || *space == CUPS_CSPACE_SW;
    static const QList<DriverRow> rows = readRows(QLatin1StringView("gray"));
    return std::ranges::any_of(rows, [&](const DriverRow& row) {
        return model.value(row.option).compare(row.choice, Qt::CaseInsensitive) == 0;
    });
}

bool wantsAdobeRgb(const PpdModel& model)
{
    return rasterSpace(model) == CUPS_CSPACE_ADOBERGB;
}

} // namespace halvern
