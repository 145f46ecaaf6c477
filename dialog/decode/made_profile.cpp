// SPDX-License-Identifier: MIT
#include "dialog/decode/made_profile.h"

#include "dialog/photo/srgb_curve.h"

#include <lcms2.h>

namespace halvern {

namespace {

constexpr double kTolerance = 0.001;

// The names by which the spaces are known; "sRGB" only with its own curve.
QByteArray nameFor(const Primaries& primaries, double gamma)
{
    const char* name = isNear(primaries, kSrgbPrimaries)        ? "sRGB primaries"
                       : isNear(primaries, kDisplayP3Primaries) ? "Display P3"
                       : isNear(primaries, kWidePrimaries)      ? "Rec. 2020"
                                                                : "RGB as the file notes";
    return gamma > 0.0 ? QByteArray(name) + ", gamma " + QByteArray::number(gamma, 'g', 3) : QByteArray(name);
}

void setName(cmsHPROFILE profile, const QByteArray& name)
{
    cmsMLU* text = cmsMLUalloc(nullptr, 1);
    if (text && cmsMLUsetASCII(text, "en", "US", name.constData()))
        cmsWriteTag(profile, cmsSigProfileDescriptionTag, text);
    cmsMLUfree(text);
}

} // namespace

bool isNear(const Primaries& one, const Primaries& other)
{
    const auto same = [](const Chromaticity& a, const Chromaticity& b) {
        return qAbs(a.x - b.x) < kTolerance && qAbs(a.y - b.y) < kTolerance;
    };
    return same(one.white, other.white) && same(one.red, other.red) && same(one.green, other.green) &&
           same(one.blue, other.blue);
}

QByteArray profileFor(const Primaries& primaries, double gamma)
{
    cmsToneCurve* curve = gamma > 0.0 ? cmsBuildGamma(nullptr, gamma)
                                      : cmsBuildParametricToneCurve(nullptr, 4, kSrgbCurve.data());
    const auto color = [](const Chromaticity& c) { return cmsCIExyY{c.x, c.y, 1.0}; };
    const cmsCIExyY white = color(primaries.white);
    const cmsCIExyYTRIPLE triple{color(primaries.red), color(primaries.green), color(primaries.blue)};
    cmsToneCurve* curves[] = {curve, curve, curve};
    cmsHPROFILE profile = curve ? cmsCreateRGBProfile(&white, &triple, curves) : nullptr;
    cmsFreeToneCurve(curve);
    if (profile)
        setName(profile, nameFor(primaries, gamma));
    QByteArray bytes;
    cmsUInt32Number size = 0;
    if (profile && cmsSaveProfileToMem(profile, nullptr, &size)) {
        bytes.resize(size);
        if (!cmsSaveProfileToMem(profile, bytes.data(), &size))
            bytes.clear();
    }
    if (profile)
        cmsCloseProfile(profile);
    return bytes;
}

} // namespace halvern
