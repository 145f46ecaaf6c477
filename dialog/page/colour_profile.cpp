// SPDX-License-Identifier: MIT
#include "dialog/page/colour_profile.h"

#include "dialog/photo/srgb_curve.h"

#include <array>

#include <lcms2.h>

namespace halvern {

namespace {

constexpr int kLongestProfileName = 200;

OpenProfile heldProfile(cmsHPROFILE profile)
{
    return {profile, [](void* p) {
                if (p)
                    cmsCloseProfile(p);
            }};
}

OpenProfile makeGray()
{
    // Little CMS has sRGB for three channels; one channel takes the same curve.
    cmsToneCurve* tone = cmsBuildParametricToneCurve(nullptr, 4, kSrgbCurve.data());
    OpenProfile profile = heldProfile(cmsCreateGrayProfile(cmsD50_xyY(), tone));
    cmsFreeToneCurve(tone);
    return profile;
}

// Adobe RGB (1998), from its published primaries, white point and gamma.
OpenProfile makeAdobeRgb()
{
    const cmsCIExyY white{0.3127, 0.3290, 1.0};
    const cmsCIExyYTRIPLE primaries{{0.64, 0.33, 1.0}, {0.21, 0.71, 1.0}, {0.15, 0.06, 1.0}};
    cmsToneCurve* tone = cmsBuildGamma(nullptr, 563.0 / 256.0);
    const std::array<cmsToneCurve*, 3> tones{tone, tone, tone};
    OpenProfile profile = heldProfile(cmsCreateRGBProfile(&white, &primaries, tones.data()));
    cmsFreeToneCurve(tone);
    return profile;
}

const OpenProfile& adobeRgb()
{
    static const OpenProfile profile = makeAdobeRgb();
    return profile;
}

QByteArray bytesOf(const OpenProfile& profile)
{
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(profile.get(), nullptr, &size);
    QByteArray bytes(qsizetype(size), Qt::Uninitialized);
    return cmsSaveProfileToMem(profile.get(), bytes.data(), &size) ? bytes : QByteArray();
}

// Not a link between two devices and no list of named colours.
bool isOfPixels(cmsHPROFILE profile)
{
    const cmsProfileClassSignature kind = cmsGetDeviceClass(profile);
    return kind == cmsSigInputClass || kind == cmsSigDisplayClass || kind == cmsSigOutputClass ||
           kind == cmsSigColorSpaceClass;
}

} // namespace

OpenProfile openProfile(const QByteArray& bytes)
{
    if (bytes.isEmpty())
        return nullptr;
    OpenProfile profile =
        heldProfile(cmsOpenProfileFromMem(bytes.constData(), cmsUInt32Number(bytes.size())));
    return profile && isOfPixels(profile.get()) && channelsOf(profile) > 0 ? profile : nullptr;
}

OpenProfile srgbProfile(bool isGray)
{
    static const OpenProfile colours = heldProfile(cmsCreate_sRGBProfile());
    static const OpenProfile grays = makeGray();
    return isGray ? grays : colours;
}

const QByteArray& adobeRgbBytes()
{
    static const QByteArray bytes = bytesOf(adobeRgb());
    return bytes;
}

OpenProfile sourceProfile(const StoredPicture& picture)
{
    const int channels = channelsOf(picture.format);
    if (OpenProfile embedded = openProfile(picture.profile); embedded && channelsOf(embedded) == channels)
        return embedded;
    if (channels == 4)
        return nullptr;
    const bool isAdobe = channels == 3 && picture.colorTag == ColorTag::adobeRgb;
    return isAdobe ? adobeRgb() : srgbProfile(channels == 1);
}

int channelsOf(const OpenProfile& profile)
{
    switch (cmsGetColorSpace(profile.get())) {
    case cmsSigGrayData:
        return 1;
    case cmsSigRgbData:
        return 3;
    case cmsSigCmykData:
        return 4;
    default:
        return 0;
    }
}

bool canConvertTo(const OpenProfile& profile)
{
    cmsHTRANSFORM transform = cmsCreateTransform(srgbProfile().get(), TYPE_RGB_8, profile.get(),
                                                 plainType(channelsOf(profile)), INTENT_PERCEPTUAL, 0);
    if (transform)
        cmsDeleteTransform(transform);
    return transform != nullptr;
}

QString profileName(const OpenProfile& profile)
{
    std::array<wchar_t, kLongestProfileName> name = {};
    cmsGetProfileInfo(profile.get(), cmsInfoDescription, "en", "US", name.data(),
                      cmsUInt32Number(name.size() * sizeof(wchar_t)));
    name.back() = L'\0';
    return QString::fromWCharArray(name.data()).simplified();
}

quint32 pixelType(PixelFormat format)
{
    switch (format) {
    case PixelFormat::gray8:
        return TYPE_GRAY_8;
    case PixelFormat::gray16:
        return TYPE_GRAY_16;
    case PixelFormat::rgb8:
        return TYPE_RGB_8;
    case PixelFormat::rgb16:
        return TYPE_RGB_16;
    case PixelFormat::cmyk8:
        break;
    }
    return TYPE_CMYK_8;
}

quint32 cmsIntent(ColourIntent intent)
{
    switch (intent) {
    case ColourIntent::perceptual:
        return INTENT_PERCEPTUAL;
    case ColourIntent::relative:
        return INTENT_RELATIVE_COLORIMETRIC;
    case ColourIntent::saturation:
        return INTENT_SATURATION;
    case ColourIntent::absolute:
        break;
    }
    return INTENT_ABSOLUTE_COLORIMETRIC;
}

quint32 plainType(int channels)
{
    return channels == 1 ? TYPE_GRAY_8 : channels == 4 ? TYPE_CMYK_8 : TYPE_RGB_8;
}

} // namespace halvern
