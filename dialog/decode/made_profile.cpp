// SPDX-License-Identifier: MIT
#include "dialog/decode/made_profile.h"

#include <lcms2.h>

namespace halvern {

namespace {

constexpr double kTolerance = 0.001;

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
    const double srgb[] = {2.4, 1.0 / 1.055, 0.055 / 1.055, 1.0 / 12.92, 0.04045};
    cmsToneCurve* curve =
        gamma > 0.0 ? cmsBuildGamma(nullptr, gamma) : cmsBuildParametricToneCurve(nullptr, 4, srgb);
    const auto color = [](const Chromaticity& c) { return cmsCIExyY{c.x, c.y, 1.0}; };
    const cmsCIExyY white = color(primaries.white);
    const cmsCIExyYTRIPLE triple{color(primaries.red), color(primaries.green), color(primaries.blue)};
    cmsToneCurve* curves[] = {curve, curve, curve};
    cmsHPROFILE profile = curve ? cmsCreateRGBProfile(&white, &triple, curves) : nullptr;
    cmsFreeToneCurve(curve);
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
