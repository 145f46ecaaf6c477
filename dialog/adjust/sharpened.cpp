// SPDX-License-Identifier: MIT
#include "dialog/adjust/adjust.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace halvern::adjust {

namespace {

constexpr int kMostRadius = 10;
constexpr double kMostIntensity = 5.0;

// One number for each pixel, row by row.
struct Plane {
    Plane(int w, int h) : width(w), height(h), values(size_t(w) * size_t(h)) {}

    float* row(int y) { return values.data() + size_t(y) * size_t(width); }

    const float* row(int y) const { return values.data() + size_t(y) * size_t(width); }

    int width;
    int height;
    std::vector<float> values;
};

// The right half of a bell curve, its middle first, as wide as the radius; both halves add up to 1.
std::vector<float> bellCurve(int radius)
{
    std::vector<double> bell(size_t(radius) + 1);
    double sum = 0.0;
    for (int i = 0; i <= radius; ++i) {
        const double distance = 2.0 * i / radius;
        bell[size_t(i)] = std::exp(-0.5 * distance * distance);
        sum += (i == 0 ? 1.0 : 2.0) * bell[size_t(i)];
    }
    std::vector<float> weights(bell.size());
    std::transform(bell.begin(), bell.end(), weights.begin(), [sum](double w) { return float(w / sum); });
    return weights;
}

Plane brightnessOf(const QImage& image)
{
    Plane plane(image.width(), image.height());
    for (int y = 0; y < plane.height; ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        float* out = plane.row(y);
        for (int x = 0; x < plane.width; ++x)
            out[x] = 0.2126F * float(qRed(line[x])) + 0.7152F * float(qGreen(line[x])) +
                     0.0722F * float(qBlue(line[x]));
    }
    return plane;
}

// Beyond the borders the outermost pixel goes on.
Plane blurredAcross(const Plane& plane, const std::vector<float>& weights)
{
    const int radius = int(weights.size()) - 1;
    Plane result(plane.width, plane.height);
    std::vector<float> padded(size_t(plane.width) + 2 * size_t(radius));
    for (int y = 0; y < plane.height; ++y) {
        const float* in = plane.row(y);
        std::fill_n(padded.begin(), radius, in[0]);
        std::copy_n(in, plane.width, padded.begin() + radius);
        std::fill_n(padded.end() - radius, radius, in[plane.width - 1]);
        const float* middle = padded.data() + radius;
        float* out = result.row(y);
        for (int x = 0; x < plane.width; ++x)
            out[x] = weights[0] * middle[x];
        for (int i = 1; i <= radius; ++i) {
            const float weight = weights[size_t(i)];
            for (int x = 0; x < plane.width; ++x)
                out[x] += weight * (middle[x - i] + middle[x + i]);
        }
    }
    return result;
}

void blurDown(const Plane& plane, int y, const std::vector<float>& weights, float* out)
{
    std::transform(plane.row(y), plane.row(y) + plane.width, out,
                   [weight = weights[0]](float value) { return weight * value; });
    for (int i = 1; i < int(weights.size()); ++i) {
        const float* above = plane.row(std::max(0, y - i));
        const float* below = plane.row(std::min(plane.height - 1, y + i));
        const float weight = weights[size_t(i)];
        for (int x = 0; x < plane.width; ++x)
            out[x] += weight * (above[x] + below[x]);
    }
}

void addDifference(QRgb* line, int width, const float* sharp, const float* blurred, float intensity)
{
    for (int x = 0; x < width; ++x) {
        const float difference = intensity * (sharp[x] - blurred[x]);
        // Rounded by hand, which the compiler can do for several pixels at once.
        const int more = int(difference + std::copysign(0.5F, difference));
        const QRgb pixel = line[x];
        line[x] = qRgba(std::clamp(qRed(pixel) + more, 0, 255), std::clamp(qGreen(pixel) + more, 0, 255),
                        std::clamp(qBlue(pixel) + more, 0, 255), qAlpha(pixel));
    }
}

} // namespace

QImage sharpened(const QImage& image, const Sharpening& sharpening)
{
    // Not-a-number is neither greater than nor equal to anything.
    const bool changes = sharpening.radius >= 1.0 && sharpening.intensity > 0.0;
    if (image.isNull() || !changes)
        return image;
    const int radius = int(std::min<double>(sharpening.radius, kMostRadius));
    const float intensity = float(std::min(sharpening.intensity, kMostIntensity));
    QImage result =
        image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    const std::vector<float> weights = bellCurve(radius);
    const Plane sharp = brightnessOf(result);
    const Plane across = blurredAcross(sharp, weights);
    std::vector<float> blurred(size_t(result.width()));
    for (int y = 0; y < result.height(); ++y) {
        blurDown(across, y, weights, blurred.data());
        addDifference(reinterpret_cast<QRgb*>(result.scanLine(y)), result.width(), sharp.row(y),
                      blurred.data(), intensity);
    }
    return result;
}

} // namespace halvern::adjust
