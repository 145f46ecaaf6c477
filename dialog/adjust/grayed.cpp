// SPDX-License-Identifier: MIT
#include "dialog/adjust/adjust.h"
#include "dialog/adjust/grey_weights.h"

#include <array>
#include <cmath>

namespace halvern::adjust {

namespace {

// Light is counted in 4096ths.
constexpr int kMostLight = 4096;

double lightOf(double tone)
{
    return tone <= 0.04045 ? tone / 12.92 : std::pow((tone + 0.055) / 1.055, 2.4);
}

double toneOf(double light)
{
    return light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1.0 / 2.4) - 0.055;
}

std::array<int, 256> makeLights()
{
    std::array<int, 256> lights{};
    for (size_t i = 0; i < lights.size(); ++i)
        lights[i] = int(std::lround(lightOf(double(i) / 255.0) * kMostLight));
    return lights;
}

std::array<uchar, kMostLight + 1> makeTones()
{
    std::array<uchar, kMostLight + 1> tones{};
    for (size_t i = 0; i < tones.size(); ++i)
        tones[i] = uchar(std::lround(toneOf(double(i) / kMostLight) * 255.0));
    return tones;
}

} // namespace

QImage grayed(const QImage& srgb)
{
    static const std::array<int, 256> lights = makeLights();
    static const std::array<uchar, kMostLight + 1> tones = makeTones();
    if (srgb.isNull())
        return srgb;
    QImage result =
        srgb.convertToFormat(srgb.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    for (int y = 0; y < result.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            const QRgb pixel = line[x];
            const int light =
                (lights[size_t(qRed(pixel))] * kRedWeight + lights[size_t(qGreen(pixel))] * kGreenWeight +
                 lights[size_t(qBlue(pixel))] * kBlueWeight + (1 << (kWeightBits - 1))) >>
                kWeightBits;
            const int tone = tones[size_t(light)];
            line[x] = qRgba(tone, tone, tone, qAlpha(pixel));
        }
    }
    return result;
}

} // namespace halvern::adjust
