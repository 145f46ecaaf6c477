// SPDX-License-Identifier: MIT
#include "dialog/adjust/adjust.h"
#include "tests/support/test.h"

#include <QColorSpace>

#include <limits>

namespace halvern::adjust {
namespace {

// Every tone in grey, then a walk through colours.
QImage chart()
{
    QImage image(256, 2, QImage::Format_RGB32);
    for (int x = 0; x < 256; ++x) {
        image.setPixel(x, 0, qRgb(x, x, x));
        image.setPixel(x, 1, qRgb(x, (x * 7) % 256, 255 - x));
    }
    return image;
}

int grey(const QImage& image, int tone)
{
    return qGreen(image.pixel(tone, 0));
}

ColorAdjustments only(double ColorAdjustments::*field, double value)
{
    ColorAdjustments result;
    result.*field = value;
    return result;
}

TEST(ColourPreview, NeutralValuesChangeNoPixel)
{
    EXPECT_EQ(adjusted(chart(), {}), chart());
    // The arithmetic too, not only the short cut around it.
    ColorAdjustments almost = only(&ColorAdjustments::brightness, 1e-9);
    almost.gamma = 1.0 + 1e-9;
    EXPECT_EQ(adjusted(chart(), almost), chart());
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(adjusted(chart(), {nan, nan, nan, nan, nan, nan, nan}), chart());
    EXPECT_TRUE(adjusted(QImage(), only(&ColorAdjustments::red, 50)).isNull());
}

TEST(ColourPreview, EachControlDoesWhatItsNameSays)
{
    const auto toneWith = [](double ColorAdjustments::*field, double value, int tone) {
        return grey(adjusted(chart(), only(field, value)), tone);
    };
    EXPECT_GT(toneWith(&ColorAdjustments::brightness, 10, 100), 100);
    EXPECT_LT(toneWith(&ColorAdjustments::brightness, -10, 100), 100);
    EXPECT_GT(toneWith(&ColorAdjustments::contrast, 50, 200), 200);
    EXPECT_LT(toneWith(&ColorAdjustments::contrast, 50, 50), 50);
    EXPECT_LT(toneWith(&ColorAdjustments::contrast, -50, 200), 200);
    EXPECT_EQ(toneWith(&ColorAdjustments::gamma, 2.0, 64), 128) << "255 * sqrt(64 / 255) = 127.7";
    EXPECT_EQ(toneWith(&ColorAdjustments::gamma, 0.5, 128), 64) << "255 * (128 / 255)^2 = 64.3";
    EXPECT_EQ(toneWith(&ColorAdjustments::green, 100, 100), 141) << "half a stop: 100 * sqrt(2) = 141.4";
}

TEST(ColourPreview, AChannelMovesOnlyItself)
{
    const QRgb pixel = chart().pixel(90, 1);
    const QRgb redder = adjusted(chart(), only(&ColorAdjustments::red, 40)).pixel(90, 1);
    EXPECT_GT(qRed(redder), qRed(pixel));
    EXPECT_EQ(qGreen(redder), qGreen(pixel));
    EXPECT_EQ(qBlue(redder), qBlue(pixel));
    const QRgb yellower = adjusted(chart(), only(&ColorAdjustments::blue, -40)).pixel(90, 1);
    EXPECT_LT(qBlue(yellower), qBlue(pixel));
    EXPECT_EQ(qRed(yellower), qRed(pixel));
}

TEST(ColourPreview, SaturationRunsFromGreyToTwiceTheColour)
{
    const QImage none = adjusted(chart(), only(&ColorAdjustments::saturation, -100));
    for (int x = 0; x < 256; ++x)
        ASSERT_TRUE(qIsGray(none.pixel(x, 1))) << x;
    QImage orange(1, 1, QImage::Format_RGB32);
    orange.fill(qRgb(140, 120, 100));
    const QRgb lively = adjusted(orange, only(&ColorAdjustments::saturation, 100)).pixel(0, 0);
    EXPECT_NEAR(qRed(lively) - qGreen(lively), 40, 1);
    EXPECT_NEAR(qGreen(lively) - qBlue(lively), 40, 1);
    const QImage greys = adjusted(chart(), only(&ColorAdjustments::saturation, 73));
    for (int tone = 0; tone < 256; ++tone)
        ASSERT_EQ(greys.pixel(tone, 0), chart().pixel(tone, 0)) << "grey has no colour to strengthen";
}

TEST(ChoicesOfThePreview, AreReadByTheNumberThatTheyStartWith)
{
    QMap<QString, QString> choices{
        {q("AdjustmentsEnabled"), q("True")},
        {q("Brightness"), q("-12.5 or so")},
        {q("Red"), q("abc")},
        {q("Gamma"), q("1.80")},
    };
    ColorAdjustments expected;
    expected.brightness = -12.5;
    expected.gamma = 1.8;
    EXPECT_EQ(colorAdjustments(choices), expected);
    choices[q("AdjustmentsEnabled")] = q("False");
    EXPECT_EQ(colorAdjustments(choices), ColorAdjustments());
    choices.remove(q("AdjustmentsEnabled"));
    EXPECT_EQ(colorAdjustments(choices), ColorAdjustments());
}

} // namespace
} // namespace halvern::adjust
