#include "dialog/adjust/adjust.h"

#include <QColorSpace>

#include <gtest/gtest.h>

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

TEST(ColourPreview, EveryToneCurveRisesAndStaysInRange)
{
    for (auto field : {&ColorAdjustments::brightness, &ColorAdjustments::contrast, &ColorAdjustments::gamma,
                       &ColorAdjustments::green}) {
        for (const double value : {-1e9, -100.0, -37.5, 0.2, 2.2, 63.0, 100.0, 1e9}) {
            const QImage result = adjusted(chart(), only(field, value));
            for (int tone = 1; tone < 256; ++tone)
                ASSERT_GE(grey(result, tone), grey(result, tone - 1)) << value << " at " << tone;
        }
    }
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

TEST(ColourPreview, KeepsTransparencyColourSpaceAndSizeOfAnyFormat)
{
    const ColorAdjustments brighter = only(&ColorAdjustments::brightness, 20);
    const QRgb expected = adjusted(chart(), brighter).pixel(120, 0);
    for (const QImage::Format format : {QImage::Format_RGB888, QImage::Format_ARGB32_Premultiplied,
                                        QImage::Format_Grayscale8, QImage::Format_RGBX64}) {
        const QImage result = adjusted(chart().convertToFormat(format), brighter);
        ASSERT_EQ(result.size(), chart().size());
        EXPECT_NEAR(qGreen(result.pixel(120, 0)), qGreen(expected), 2) << format;
    }
    QImage seeThrough(1, 1, QImage::Format_ARGB32);
    seeThrough.fill(qRgba(10, 20, 30, 77));
    seeThrough.setColorSpace(QColorSpace::SRgb);
    seeThrough.setDevicePixelRatio(2.0);
    const QImage result = adjusted(seeThrough, brighter);
    EXPECT_EQ(qAlpha(result.pixel(0, 0)), 77);
    EXPECT_EQ(result.colorSpace(), QColorSpace(QColorSpace::SRgb));
    EXPECT_EQ(result.devicePixelRatio(), 2.0);
    EXPECT_EQ(seeThrough.pixel(0, 0), qRgba(10, 20, 30, 77)) << "the original stays as it is";
}

TEST(ChoicesOfThePreview, AreReadByTheNumberThatTheyStartWith)
{
    QMap<QString, QString> choices{
        {QStringLiteral("AdjustmentsEnabled"), QStringLiteral("True")},
        {QStringLiteral("Brightness"), QStringLiteral("-12.5 or so")},
        {QStringLiteral("Red"), QStringLiteral("abc")},
        {QStringLiteral("Gamma"), QStringLiteral("1.80")},
    };
    ColorAdjustments expected;
    expected.brightness = -12.5;
    expected.gamma = 1.8;
    EXPECT_EQ(colorAdjustments(choices), expected);
    choices[QStringLiteral("AdjustmentsEnabled")] = QStringLiteral("False");
    EXPECT_EQ(colorAdjustments(choices), ColorAdjustments());
    choices.remove(QStringLiteral("AdjustmentsEnabled"));
    EXPECT_EQ(colorAdjustments(choices), ColorAdjustments());
}

} // namespace
} // namespace halvern::adjust
