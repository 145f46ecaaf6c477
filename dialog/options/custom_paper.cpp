// SPDX-License-Identifier: MIT
#include "dialog/options/custom_paper.h"

#include "platform/foundation/units.h"
#include "platform/printing/cups_ppd.h"

#include <QCoreApplication>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <cmath>

namespace halvern {

namespace {

// Measures go over the wire in hundredths of a millimetre.
constexpr double kCustomRounding = 0.01 * kPointsPerMillimetre;

QString millimetres(double points)
{
    return QString::number(std::round(points / kPointsPerMillimetre * 100.0) / 100.0, 'g', 8);
}

struct CustomPaperWords {
    Q_DECLARE_TR_FUNCTIONS(CustomPaper)
};

double pointsIn(const QString& unit)
{
    if (unit == QLatin1StringView("mm"))
        return kPointsPerMillimetre;
    if (unit == QLatin1StringView("cm"))
        return 10.0 * kPointsPerMillimetre;
    if (unit == QLatin1StringView("m"))
        return 1000.0 * kPointsPerMillimetre;
    if (unit == QLatin1StringView("in"))
        return kPointsPerInch;
    return unit == QLatin1StringView("ft") ? 12.0 * kPointsPerInch : 1.0;
}

} // namespace

bool PaperLimits::holds(const QSizeF& points) const
{
    return points.width() >= least.width() - kCustomRounding &&
           points.width() <= most.width() + kCustomRounding &&
           points.height() >= least.height() - kCustomRounding &&
           points.height() <= most.height() + kCustomRounding;
}

std::optional<PaperLimits> paperLimits(ppd_file_t* file)
{
    ppd_size_t least{};
    ppd_size_t most{};
    // A roll of one width has the same least and most.
    if (!ppdPageSizeLimits(file, &least, &most) || most.width < least.width || most.length < least.length ||
        most.width <= 0.0F || most.length <= 0.0F)
        return std::nullopt;
    const std::array<double, 4> custom{double(file->custom_margins[0]), double(file->custom_margins[1]),
                                       double(file->custom_margins[2]), double(file->custom_margins[3])};
    return PaperLimits{QSizeF(double(least.width), double(least.length)),
                       QSizeF(double(most.width), double(most.length)),
                       QMarginsF(custom[0], custom[3], custom[2], custom[1])};
}

QString customKeyword(const QSizeF& points)
{
    return QStringLiteral("Custom.%1x%2mm").arg(millimetres(points.width()), millimetres(points.height()));
}

std::optional<QSizeF> customMeasures(const QString& keyword)
{
    static const QRegularExpression kForm(
        QStringLiteral("^Custom\\.([0-9]+(?:\\.[0-9]+)?)x([0-9]+(?:\\.[0-9]+)?)(pt|in|ft|cm|mm|m)?$"));
    const QRegularExpressionMatch match = kForm.match(keyword);
    if (!match.hasMatch())
        return std::nullopt;
    return QSizeF(match.captured(1).toDouble(), match.captured(2).toDouble()) * pointsIn(match.captured(3));
}

QString measuresText(const QSizeF& points, bool isMetric, int decimals)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    const double unit = isMetric ? kPointsPerMillimetre : kPointsPerInch;
    const double steps = std::pow(10.0, isMetric ? decimals : 2);
    const auto number = [&](double length) {
        return locale.toString(std::round(length / unit * steps) / steps, 'g', 7);
    };
    return (isMetric ? CustomPaperWords::tr("%1 \u00d7 %2 mm") : CustomPaperWords::tr("%1 \u00d7 %2 in"))
        .arg(number(points.width()), number(points.height()));
}

QString customText(const QString& keyword)
{
    const std::optional<QSizeF> points = customMeasures(keyword);
    return points ? measuresText(*points, QLocale().measurementSystem() == QLocale::MetricSystem, 1)
                  : keyword;
}

double heightForPhoto(double width, const QSizeF& photo, const QMarginsF& margins)
{
    const double room = std::max(width - margins.left() - margins.right(), 1.0);
    return room * photo.height() / std::max(photo.width(), 1.0) + margins.top() + margins.bottom();
}

} // namespace halvern
