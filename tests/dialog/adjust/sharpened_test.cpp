// SPDX-License-Identifier: MIT
#include "dialog/adjust/adjust.h"
#include "tests/support/test.h"

#include <limits>

namespace halvern::adjust {
namespace {

constexpr int kSize = 48;
constexpr int kEdge = kSize / 2;

// Dark on the left, light on the right.
QImage edge()
{
    QImage image(kSize, kSize, QImage::Format_RGB32);
    for (int y = 0; y < kSize; ++y) {
        for (int x = 0; x < kSize; ++x)
            image.setPixel(x, y, x < kEdge ? qRgb(90, 90, 90) : qRgb(160, 160, 160));
    }
    return image;
}

int toneAt(const QImage& image, int x)
{
    return qGreen(image.pixel(x, kSize / 2));
}

TEST(SharpnessPreview, NoRadiusOrNoIntensityChangesNoPixel)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const Sharpening none : {Sharpening{0, 5}, Sharpening{0.9, 5}, Sharpening{3, 0}, Sharpening{-3, 2},
                                  Sharpening{3, -2}, Sharpening{nan, 2}, Sharpening{2, nan}})
        EXPECT_EQ(sharpened(edge(), none), edge());
    EXPECT_TRUE(sharpened(QImage(), {2, 2}).isNull());
}

TEST(SharpnessPreview, ReachesAsFarFromAnEdgeAsTheRadiusSays)
{
    for (const int radius : {1, 4, 10}) {
        const QImage result = sharpened(edge(), {double(radius), 5});
        EXPECT_LT(toneAt(result, kEdge - radius), 90) << radius;
        EXPECT_EQ(toneAt(result, kEdge - radius - 1), 90) << radius;
        EXPECT_GT(toneAt(result, kEdge + radius - 1), 160) << radius;
        EXPECT_EQ(toneAt(result, kEdge + radius), 160) << radius;
    }
    EXPECT_EQ(sharpened(edge(), {99, 1}), sharpened(edge(), {10, 1})) << "held to the printer's range";
}

TEST(SharpnessPreview, KeepsColourDifferencesAndTransparency)
{
    QImage image(kSize, 1, QImage::Format_ARGB32);
    for (int x = 0; x < kSize; ++x)
        image.setPixel(x, 0, x < kEdge ? qRgba(120, 100, 80, 50) : qRgba(150, 130, 110, 200));
    const QImage result = sharpened(image, {4, 1});
    for (int x = 0; x < kSize; ++x) {
        const QRgb pixel = result.pixel(x, 0);
        ASSERT_EQ(qRed(pixel) - qGreen(pixel), 20) << x;
        ASSERT_EQ(qGreen(pixel) - qBlue(pixel), 20) << x;
        ASSERT_EQ(qAlpha(pixel), qAlpha(image.pixel(x, 0))) << x;
    }
    EXPECT_NE(result, image);
}

} // namespace
} // namespace halvern::adjust
