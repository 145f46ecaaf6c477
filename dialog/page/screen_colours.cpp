// SPDX-License-Identifier: MIT
#include "dialog/page/screen_colours.h"

#include "dialog/page/colour_profile.h"
#include "platform/foundation/threads/all_cores.h"

#include <array>

#include <lcms2.h>

namespace halvern {

namespace {

constexpr qsizetype kLeastRows = 64; // that are worth another core

// A tone that photos hardly have. As the conversion's result: red, green and blue of the screen.
constexpr std::array<cmsUInt16Number, cmsMAXCHANNELS> kBeyondGamut{0xFFFF, 0x0000, 0xCCCC};

// QImage's 32 bits a pixel.
#if Q_BYTE_ORDER == Q_LITTLE_ENDIAN
constexpr cmsUInt32Number kPixel = TYPE_BGRA_8;
#else
constexpr cmsUInt32Number kPixel = TYPE_ARGB_8;
#endif

std::shared_ptr<void> heldTransform(cmsHTRANSFORM transform)
{
    return {transform, [](void* t) {
                if (t)
                    cmsDeleteTransform(t);
            }};
}

// From sRGB to the paper as it is printed, and from there to the screen: with the paper's white as it is, or
// as the screen's.
cmsHTRANSFORM makeProof(const ScreenPlan& plan, const OpenProfile& monitor, const OpenProfile& printer)
{
    cmsUInt32Number flags = cmsFLAGS_SOFTPROOFING | cmsFLAGS_COPY_ALPHA;
    if (plan.proof->compensatesBlack)
        flags |= cmsFLAGS_BLACKPOINTCOMPENSATION;
    if (plan.marksGamut) {
        flags |= cmsFLAGS_GAMUTCHECK;
        // Nobody else marks anything.
        cmsSetAlarmCodes(kBeyondGamut.data());
    }
    const cmsUInt32Number shown =
        plan.showsPaper ? INTENT_ABSOLUTE_COLORIMETRIC : INTENT_RELATIVE_COLORIMETRIC;
    return cmsCreateProofingTransform(srgbProfile().get(), kPixel, monitor.get(), kPixel, printer.get(),
                                      cmsIntent(plan.proof->intent), shown, flags);
}

OpenProfile monitorProfile(const ScreenPlan& plan)
{
    const OpenProfile monitor = openProfile(plan.monitor);
    return monitor && channelsOf(monitor) == 3 ? monitor : srgbProfile();
}

} // namespace

bool canProof(const QByteArray& profile)
{
    const ScreenPlan plan{{}, ColourPlan{profile, ColourIntent::relative, false}, true, false};
    const OpenProfile printer = openProfile(profile);
    return printer && heldTransform(makeProof(plan, srgbProfile(), printer));
}

bool isScreenProfile(const QByteArray& profile)
{
    const OpenProfile monitor = openProfile(profile);
    return monitor && channelsOf(monitor) == 3 && canConvertTo(monitor);
}

ScreenTransform::ScreenTransform(const ScreenPlan& plan)
{
    const OpenProfile monitor = monitorProfile(plan);
    const OpenProfile printer = plan.proof ? openProfile(plan.proof->target) : nullptr;
    if (printer)
        transform_ = heldTransform(makeProof(plan, monitor, printer));
    if (!transform_ && !plan.monitor.isEmpty())
        transform_ = heldTransform(cmsCreateTransform(srgbProfile().get(), kPixel, monitor.get(), kPixel,
                                                      INTENT_RELATIVE_COLORIMETRIC,
                                                      cmsFLAGS_BLACKPOINTCOMPENSATION | cmsFLAGS_COPY_ALPHA));
}

QImage ScreenTransform::converted(const QImage& srgb) const
{
    if (!transform_ || srgb.isNull())
        return srgb;
    const QImage from =
        srgb.convertToFormat(srgb.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    QImage to(from.size(), from.format());
    uchar* const rows = to.bits();
    onAllCores(to.height(), kLeastRows, [&](qsizetype first, qsizetype count) {
        for (qsizetype y = first; y < first + count; ++y)
            cmsDoTransform(transform_.get(), from.constScanLine(int(y)), rows + y * to.bytesPerLine(),
                           cmsUInt32Number(to.width()));
    });
    return to;
}

QColor ScreenTransform::paper() const
{
    QImage white(1, 1, QImage::Format_RGB32);
    white.fill(Qt::white);
    return converted(white).pixelColor(0, 0);
}

} // namespace halvern
