// SPDX-License-Identifier: MIT
#include "dialog/page/colour_transform.h"

#include "dialog/page/colour_profile.h"
#include "platform/foundation/threads/all_cores.h"

#include <array>
#include <cstdlib>
#include <vector>

#include <lcms2.h>

namespace halvern {

namespace {

constexpr int kSteps = 6; // of each channel, when a conversion is tried on samples
constexpr int kStep = 255 / (kSteps - 1);
constexpr qsizetype kLeastPixels = 32 * 1024; // that are worth another core
constexpr qsizetype kMostPixels = 1 << 24;    // in one call of Little CMS
constexpr qsizetype kInkPixels = 4096;

cmsUInt32Number intentOf(const ColourPlan& plan)
{
    switch (plan.intent) {
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

std::shared_ptr<void> makeTransform(const OpenProfile& source, cmsUInt32Number from,
                                    const OpenProfile& target, cmsUInt32Number to, const ColourPlan& plan)
{
    // A grid between four inks and light is off by up to 20 of 255: they are worked out one by one.
    const cmsUInt32Number exactness = T_CHANNELS(from) == 4 ? cmsFLAGS_NOOPTIMIZE : cmsFLAGS_HIGHRESPRECALC;
    const cmsUInt32Number flags = exactness | (plan.compensatesBlack ? cmsFLAGS_BLACKPOINTCOMPENSATION : 0);
    return {cmsCreateTransform(source.get(), from, target.get(), to, intentOf(plan), flags), [](void* t) {
                if (t)
                    cmsDeleteTransform(t);
            }};
}

std::vector<uchar> samples(int channels)
{
    std::vector<uchar> numbers;
    if (channels == 1) {
        for (int v = 0; v < 256; ++v)
            numbers.push_back(uchar(v));
        return numbers;
    }
    for (int i = 0; i < kSteps * kSteps * kSteps; ++i) {
        for (const int step : {i % kSteps, i / kSteps % kSteps, i / kSteps / kSteps})
            numbers.push_back(uchar(step * kStep));
    }
    return numbers;
}

// As if each ink took its colour from the light and nothing else.
void convertIdealInks(const uchar* inks, uchar* rgb, qsizetype pixels)
{
    for (; pixels > 0; --pixels, inks += 4, rgb += 3) {
        for (int i = 0; i < 3; ++i)
            rgb[i] = uchar((255 - inks[i]) * (255 - inks[3]) / 255);
    }
}

} // namespace

ColourTransform::ColourTransform(const StoredPicture& picture, const ColourPlan& plan)
    : format_(picture.format)
{
    const int given = channelsOf(format_);
    OpenProfile source = sourceProfile(picture);
    hasIdealInks_ = !source;
    OpenProfile target = openProfile(plan.target);
    if (!target)
        target = srgbProfile(given == 1);
    channels_ = channelsOf(target);
    if (hasIdealInks_) {
        transform_ = makeTransform(srgbProfile(), TYPE_RGB_8, target, plainType(channels_), plan);
        return;
    }
    transform_ = makeTransform(source, pixelType(format_), target, plainType(channels_), plan);
    // A profile can be for the right pixels and still lack what a conversion takes.
    if (!transform_ && given != 4)
        transform_ =
            makeTransform(srgbProfile(given == 1), pixelType(format_), target, plainType(channels_), plan);
    if (!transform_ && given == 4) {
        hasIdealInks_ = true;
        transform_ = makeTransform(srgbProfile(), TYPE_RGB_8, target, plainType(channels_), plan);
    }
}

bool ColourTransform::changesNothing() const
{
    const bool isPlain = format_ == PixelFormat::gray8 || format_ == PixelFormat::rgb8;
    if (!isPlain || channelsOf(format_) != channels_)
        return false;
    const std::vector<uchar> before = samples(channels_);
    std::vector<uchar> after(before.size());
    convert(before.data(), after.data(), qsizetype(before.size()) / channels_);
    for (size_t i = 0; i < before.size(); ++i) {
        if (std::abs(int(before[i]) - int(after[i])) > 1)
            return false;
    }
    return true;
}

void ColourTransform::convert(const uchar* from, uchar* to, qsizetype pixels) const
{
    if (!transform_) {
        std::fill_n(to, pixels * channels_, uchar(255));
        return;
    }
    const qsizetype most = hasIdealInks_ ? kInkPixels : kMostPixels;
    std::vector<uchar> rgb(hasIdealInks_ ? size_t(3 * kInkPixels) : 0);
    while (pixels > 0) {
        const qsizetype count = std::min(pixels, most);
        if (hasIdealInks_)
            convertIdealInks(from, rgb.data(), count);
        cmsDoTransform(transform_.get(), hasIdealInks_ ? rgb.data() : from, to, cmsUInt32Number(count));
        from += count * bytesPerPixel(format_);
        to += count * channels_;
        pixels -= count;
    }
}

void ColourTransform::convertOnAllCores(const uchar* from, uchar* to, qsizetype pixels) const
{
    onAllCores(pixels, kLeastPixels, [&](qsizetype first, qsizetype count) {
        convert(from + first * bytesPerPixel(format_), to + first * channels_, count);
    });
}

} // namespace halvern
