// SPDX-License-Identifier: MIT
#include "dialog/page/colour_transform.h"

#include "dialog/page/colour_profile.h"
#include "platform/foundation/threads/all_cores.h"

#include <algorithm>
#include <cstdlib>
#include <deque>
#include <mutex>
#include <vector>

#include <lcms2.h>

namespace halvern {

namespace {

constexpr int kSampleSteps = 6; // of each channel, when a conversion is tried on samples
constexpr int kStep = 255 / (kSampleSteps - 1);
constexpr qsizetype kLeastPixels = 32 * 1024; // that are worth another core
constexpr qsizetype kMostPixels = 1 << 24;    // in one call of Little CMS
constexpr qsizetype kInkPixels = 4096;
constexpr size_t kMostKept = 4;

std::shared_ptr<void> makeTransform(const OpenProfile& source, cmsUInt32Number from,
                                    const OpenProfile& target, cmsUInt32Number to, const ColourPlan& plan)
{
    // A grid between four inks and light is off by up to 20 of 255: they are worked out one by one.
    const cmsUInt32Number exactness = T_CHANNELS(from) == 4 ? cmsFLAGS_NOOPTIMIZE : cmsFLAGS_HIGHRESPRECALC;
    const cmsUInt32Number flags = exactness | (plan.compensatesBlack ? cmsFLAGS_BLACKPOINTCOMPENSATION : 0);
    return {cmsCreateTransform(source.get(), from, target.get(), to, cmsIntent(plan.intent), flags),
            [](void* t) {
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
    for (int i = 0; i < kSampleSteps * kSampleSteps * kSampleSteps; ++i) {
        for (const int step :
             {i % kSampleSteps, i / kSampleSteps % kSampleSteps, i / kSampleSteps / kSampleSteps})
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

struct ColourTransform::Made {
    PixelFormat format = PixelFormat::rgb8;
    QByteArray profile;
    ColorTag colorTag = ColorTag::none;
    ColourPlan plan;
    int channels = 3;
    bool hasIdealInks = false;       // no profile tells what the inks are
    std::shared_ptr<void> transform; // null: none could be made

    bool isFor(const StoredPicture& picture, const ColourPlan& wanted) const
    {
        return format == picture.format && colorTag == picture.colorTag && plan == wanted &&
               profile == picture.profile;
    }
};

std::shared_ptr<const ColourTransform::Made> ColourTransform::make(const StoredPicture& picture,
                                                                   const ColourPlan& plan)
{
    const auto made = std::make_shared<Made>();
    made->format = picture.format;
    made->profile = picture.profile;
    made->colorTag = picture.colorTag;
    made->plan = plan;
    const int given = channelsOf(picture.format);
    const OpenProfile source = sourceProfile(picture);
    OpenProfile target = openProfile(plan.target);
    if (!target)
        target = srgbProfile(given == 1);
    made->channels = channelsOf(target);
    const auto from = [&](const OpenProfile& profile, quint32 type) {
        return makeTransform(profile, type, target, plainType(made->channels), plan);
    };
    if (source)
        made->transform = from(source, pixelType(picture.format));
    // A profile can be for the right pixels and still lack what a conversion takes.
    if (!made->transform && given != 4)
        made->transform = from(srgbProfile(given == 1), pixelType(picture.format));
    made->hasIdealInks = !made->transform && given == 4;
    if (made->hasIdealInks)
        made->transform = from(srgbProfile(), TYPE_RGB_8);
    return made;
}

std::shared_ptr<const ColourTransform::Made> ColourTransform::find(const StoredPicture& picture,
                                                                   const ColourPlan& plan)
{
    static std::mutex mutex;
    static std::deque<std::shared_ptr<const Made>> kept; // the last one first
    {
        const std::scoped_lock lock(mutex);
        const auto found =
            std::ranges::find_if(kept, [&](const auto& made) { return made->isFor(picture, plan); });
        if (found != kept.end()) {
            std::rotate(kept.begin(), found, found + 1);
            return kept.front();
        }
    }
    std::shared_ptr<const Made> made = make(picture, plan);
    const std::scoped_lock lock(mutex);
    kept.push_front(made);
    if (kept.size() > kMostKept)
        kept.pop_back();
    return made;
}

ColourTransform::ColourTransform(const StoredPicture& picture, const ColourPlan& plan)
    : made_(find(picture, plan))
{
}

int ColourTransform::channels() const
{
    return made_->channels;
}

bool ColourTransform::changesNothing() const
{
    const bool isPlain = made_->format == PixelFormat::gray8 || made_->format == PixelFormat::rgb8;
    if (!isPlain || channelsOf(made_->format) != made_->channels)
        return false;
    const std::vector<uchar> before = samples(made_->channels);
    std::vector<uchar> after(before.size());
    convert(before.data(), after.data(), qsizetype(before.size()) / made_->channels);
    for (size_t i = 0; i < before.size(); ++i) {
        if (std::abs(int(before[i]) - int(after[i])) > 1)
            return false;
    }
    return true;
}

void ColourTransform::convert(const uchar* from, uchar* to, qsizetype pixels) const
{
    if (!made_->transform) {
        std::fill_n(to, pixels * made_->channels, uchar(255));
        return;
    }
    const qsizetype most = made_->hasIdealInks ? kInkPixels : kMostPixels;
    std::vector<uchar> rgb(made_->hasIdealInks ? size_t(3 * kInkPixels) : 0);
    while (pixels > 0) {
        const qsizetype count = std::min(pixels, most);
        if (made_->hasIdealInks)
            convertIdealInks(from, rgb.data(), count);
        cmsDoTransform(made_->transform.get(), made_->hasIdealInks ? rgb.data() : from, to,
                       cmsUInt32Number(count));
        from += count * bytesPerPixel(made_->format);
        to += count * made_->channels;
        pixels -= count;
    }
}

void ColourTransform::convertOnAllCores(const uchar* from, uchar* to, qsizetype pixels) const
{
    onAllCores(pixels, kLeastPixels, [&](qsizetype first, qsizetype count) {
        convert(from + first * bytesPerPixel(made_->format), to + first * made_->channels, count);
    });
}

} // namespace halvern
