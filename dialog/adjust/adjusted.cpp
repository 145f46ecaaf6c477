// SPDX-License-Identifier: MIT
#include "dialog/adjust/adjust.h"
#include "dialog/adjust/grey_weights.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace halvern::adjust {

namespace {

// Values between the table and the final 8 bits: 8.4 fixed point, so that the two steps round only once.
constexpr int kFractionBits = 4;
constexpr int kOne = 255 << kFractionBits;

// Saturation is a factor in 256ths.
constexpr int kFactorBits = 8;

// The strongest brightness moves a tone by half the way from black to white, the strongest contrast halves or
// doubles the distance from middle grey, the strongest channel is half a stop.
constexpr double kBrightnessReach = 0.5;
constexpr double kChannelStops = 0.5;

// Less than this is black in every tone but white, and more is white.
constexpr double kLeastGamma = 0.05;
constexpr double kMostGamma = 20.0;

using Table = std::array<int, 256>;

// -100 to 100 as -1 to 1; what is no number changes nothing.
double part(double value)
{
    return std::isnan(value) ? 0.0 : std::clamp(value, -100.0, 100.0) / 100.0;
}

double exponent(double gamma)
{
    return std::isnan(gamma) ? 1.0 : 1.0 / std::clamp(gamma, kLeastGamma, kMostGamma);
}

Table toneTable(double channel, const ColorAdjustments& adjustments)
{
    const double gain = std::exp2(part(channel) * kChannelStops);
    const double slope = std::exp2(part(adjustments.contrast));
    const double shift = part(adjustments.brightness) * kBrightnessReach;
    const double power = exponent(adjustments.gamma);
    Table table{};
    for (int i = 0; i < 256; ++i) {
        const double toned = (i / 255.0 * gain + shift - 0.5) * slope + 0.5;
        table[size_t(i)] = int(std::lround(std::pow(std::clamp(toned, 0.0, 1.0), power) * kOne));
    }
    return table;
}

struct Tables {
    Table red;
    Table green;
    Table blue;
    int saturation;
};

Tables tablesFor(const ColorAdjustments& adjustments)
{
    // -100 is no colour left, 100 is twice the colour.
    const double factor = 1.0 + part(adjustments.saturation);
    return {toneTable(adjustments.red, adjustments), toneTable(adjustments.green, adjustments),
            toneTable(adjustments.blue, adjustments), int(std::lround(factor * (1 << kFactorBits)))};
}

int rounded(int value)
{
    return (std::clamp(value, 0, kOne) + (1 << (kFractionBits - 1))) >> kFractionBits;
}

void adjustLine(QRgb* line, int width, const Tables& tables)
{
    for (int x = 0; x < width; ++x) {
        const QRgb pixel = line[x];
        const int red = tables.red[size_t(qRed(pixel))];
        const int green = tables.green[size_t(qGreen(pixel))];
        const int blue = tables.blue[size_t(qBlue(pixel))];
        const int grey = (red * kRedWeight + green * kGreenWeight + blue * kBlueWeight) >> kWeightBits;
        const auto saturated = [&](int value) {
            return rounded(grey + (((value - grey) * tables.saturation) >> kFactorBits));
        };
        line[x] = qRgba(saturated(red), saturated(green), saturated(blue), qAlpha(pixel));
    }
}

} // namespace

QImage adjusted(const QImage& srgb, const ColorAdjustments& adjustments)
{
    if (srgb.isNull() || adjustments == ColorAdjustments())
        return srgb;
    const Tables tables = tablesFor(adjustments);
    QImage result =
        srgb.convertToFormat(srgb.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    for (int y = 0; y < result.height(); ++y)
        adjustLine(reinterpret_cast<QRgb*>(result.scanLine(y)), result.width(), tables);
    return result;
}

} // namespace halvern::adjust
