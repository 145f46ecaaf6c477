// SPDX-License-Identifier: MIT
#include "dialog/page/srgb.h"

#include <array>
#include <cstdlib>

#include <lcms2.h>

namespace halvern {

namespace {

using Profile = std::shared_ptr<void>;
using Transform = std::shared_ptr<void>;

constexpr int kSteps = 6; // of each channel, when a profile is compared with sRGB
constexpr int kStep = 255 / (kSteps - 1);

Profile held(cmsHPROFILE profile)
{
    return {profile, [](void* p) {
                if (p)
                    cmsCloseProfile(p);
            }};
}

// Null unless the profile is for that kind of pixels.
Profile opened(const QByteArray& bytes, cmsColorSpaceSignature pixels)
{
    Profile profile = held(cmsOpenProfileFromMem(bytes.constData(), cmsUInt32Number(bytes.size())));
    return profile && cmsGetColorSpace(profile.get()) == pixels ? profile : nullptr;
}

// Little CMS has sRGB for three channels; one channel takes the same curve.
Profile grayLikeSrgb()
{
    const double curve[] = {2.4, 1.0 / 1.055, 0.055 / 1.055, 1.0 / 12.92, 0.04045};
    cmsToneCurve* tone = cmsBuildParametricToneCurve(nullptr, 4, curve);
    Profile profile = held(cmsCreateGrayProfile(cmsD50_xyY(), tone));
    cmsFreeToneCurve(tone);
    return profile;
}

Transform toSrgb(const QByteArray& bytes, cmsColorSpaceSignature pixels, cmsUInt32Number from,
                 cmsUInt32Number to)
{
    const Profile source = bytes.isEmpty() ? nullptr : opened(bytes, pixels);
    if (!source)
        return nullptr;
    const Profile target = pixels == cmsSigGrayData ? grayLikeSrgb() : held(cmsCreate_sRGBProfile());
    return {cmsCreateTransform(source.get(), from, target.get(), to, INTENT_PERCEPTUAL, cmsFLAGS_COPY_ALPHA),
            [](void* t) {
                if (t)
                    cmsDeleteTransform(t);
            }};
}

bool changesNothing(void* transform, const QByteArray& before)
{
    QByteArray after(before.size(), '\0');
    const qsizetype channels = T_CHANNELS(cmsGetTransformInputFormat(transform));
    cmsDoTransform(transform, before.constData(), after.data(), cmsUInt32Number(before.size() / channels));
    for (qsizetype i = 0; i < before.size(); ++i) {
        if (std::abs(quint8(before[i]) - quint8(after[i])) > 1)
            return false;
    }
    return true;
}

QByteArray allGrays()
{
    QByteArray grays;
    for (int v = 0; v < 256; ++v)
        grays.append(char(v));
    return grays;
}

QByteArray sampleColours()
{
    QByteArray colours;
    for (int i = 0; i < kSteps * kSteps * kSteps; ++i) {
        for (const int step : {i % kSteps, i / kSteps % kSteps, i / kSteps / kSteps})
            colours.append(char(step * kStep));
    }
    return colours;
}

// The layouts in which pixels are handed to Little CMS.
struct Layout {
    QImage::Format format;
    cmsUInt32Number type;
};

Layout layoutFor(const QImage& image, bool isGray)
{
    const bool isDeep = image.depth() > 32 || image.format() == QImage::Format_Grayscale16;
    if (isGray)
        return isDeep ? Layout{QImage::Format_Grayscale16, TYPE_GRAY_16}
                      : Layout{QImage::Format_Grayscale8, TYPE_GRAY_8};
    if (isDeep)
        return {image.hasAlphaChannel() ? QImage::Format_RGBA64 : QImage::Format_RGBX64, TYPE_RGBA_16};
    return image.hasAlphaChannel() ? Layout{QImage::Format_RGBA8888, TYPE_RGBA_8}
                                   : Layout{QImage::Format_RGB888, TYPE_RGB_8};
}

bool isGrayLayout(const QImage& image)
{
    return image.format() == QImage::Format_Grayscale8 || image.format() == QImage::Format_Grayscale16;
}

} // namespace

bool isSrgb(const QByteArray& profile, bool isGray)
{
    const Transform transform = isGray ? toSrgb(profile, cmsSigGrayData, TYPE_GRAY_8, TYPE_GRAY_8)
                                       : toSrgb(profile, cmsSigRgbData, TYPE_RGB_8, TYPE_RGB_8);
    return !transform || changesNothing(transform.get(), isGray ? allGrays() : sampleColours());
}

QImage inSrgb(QImage image, const QByteArray& profile)
{
    const bool isGray = isGrayLayout(image);
    if (isSrgb(profile, isGray))
        return image;
    const Layout layout = layoutFor(image, isGray);
    const Transform transform =
        toSrgb(profile, isGray ? cmsSigGrayData : cmsSigRgbData, layout.type, layout.type);
    if (!transform)
        return image;
    image.convertTo(layout.format);
    for (int y = 0; y < image.height(); ++y) {
        uchar* line = image.scanLine(y);
        cmsDoTransform(transform.get(), line, line, cmsUInt32Number(image.width()));
    }
    return image;
}

InkConverter::InkConverter(const QByteArray& profile, bool isInverted)
    : transform_(toSrgb(profile, cmsSigCmykData, isInverted ? TYPE_CMYK_8_REV : TYPE_CMYK_8, TYPE_RGB_8)),
      isInverted_(isInverted)
{
}

void InkConverter::convert(const uchar* inks, uchar* rgb, int pixels) const
{
    if (transform_) {
        cmsDoTransform(transform_.get(), inks, rgb, cmsUInt32Number(pixels));
        return;
    }
    const auto light = [this](uchar ink) { return isInverted_ ? ink : 255 - ink; };
    for (; pixels > 0; --pixels, inks += 4, rgb += 3) {
        for (int i = 0; i < 3; ++i)
            rgb[i] = uchar(light(inks[i]) * light(inks[3]) / 255);
    }
}

} // namespace halvern
