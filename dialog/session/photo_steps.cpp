// SPDX-License-Identifier: MIT
#include "dialog/session/photo_steps.h"

#include "dialog/session/option_changes.h"
#include "dialog/session/photo_loader.h"

#include <QHash>

#include <algorithm>
#include <numeric>

namespace halvern {

namespace {

using ById = QHash<quint64, const Photo*>;

ById byId(const std::vector<Photo>& photos)
{
    ById known;
    known.reserve(qsizetype(photos.size()));
    for (const Photo& photo : photos)
        known.insert(photo.id, &photo);
    return known;
}

bool isSameOrder(const std::vector<Photo>& one, const std::vector<Photo>& other)
{
    return std::ranges::equal(one, other, {}, &Photo::id, &Photo::id);
}

bool isSame(const std::vector<Photo>& one, const std::vector<Photo>& other)
{
    return isSameOrder(one, other) &&
           std::ranges::equal(one, other, {}, &Photo::placement, &Photo::placement);
}

} // namespace

struct PhotoSteps::Step {
    Kind kind;
    PageSettings pageBefore;
    PageSettings pageAfter;
    std::vector<Photo> before;
    std::vector<Photo> after;
};

PhotoSteps::PhotoSteps(PhotoLoader& photos, PageSetup& page, OptionChanges& options)
    : photos_(photos), page_(page), options_(options)
{
}

bool PhotoSteps::take(Kind kind, const std::function<void()>& change)
{
    auto step = std::make_shared<Step>(Step{kind, page_.settings(), page_.settings(), photos_.photos(), {}});
    change();
    step->pageAfter = page_.settings();
    step->after = photos_.photos();
    if (step->pageBefore == step->pageAfter && isSame(step->before, step->after))
        return false;
    const std::shared_ptr<Step> last = options_.undoesStep() ? last_.lock() : nullptr;
    if (last && last->kind == kind && kind == Kind::size) {
        last->pageAfter = step->pageAfter;
        last->after = std::move(step->after);
        return true;
    }
    last_ = step;
    options_.noteOther([this, step] { undo(*step); });
    return true;
}

void PhotoSteps::undo(const Step& step)
{
    page_.set(pageBefore(step));
    photos_.arrange(photosBefore(step));
}

// What has been set beside it since stays.
PageSettings PhotoSteps::pageBefore(const Step& step) const
{
    PageSettings page = page_.settings();
    const PageSettings& before = step.pageBefore;
    const PageSettings& after = step.pageAfter;
    // A layout of the user's own may be gone.
    if (before.sheets != after.sheets && page_.layouts().find(before.sheets.layout))
        page.sheets = before.sheets;
    if (before.scaling != after.scaling)
        page.scaling = before.scaling;
    if (before.pages != after.pages)
        page.pages = before.pages;
    return page;
}

// What has been read, changed and left out since stays so.
std::vector<Photo> PhotoSteps::photosBefore(const Step& step) const
{
    const ById before = byId(step.before);
    const ById after = byId(step.after);
    const std::vector<Photo>& now = photos_.photos();
    std::vector<Photo> photos = now;
    if (!isSameOrder(step.before, step.after)) {
        const ById there = byId(now);
        photos.clear();
        for (const Photo& photo : step.before) {
            if (there.contains(photo.id))
                photos.push_back(*there.value(photo.id));
            else if (!after.contains(photo.id))
                photos.push_back(photo);
        }
        std::ranges::copy_if(now, std::back_inserter(photos),
                             [&](const Photo& photo) { return !before.contains(photo.id); });
    }
    for (Photo& photo : photos) {
        const Photo* const was = before.value(photo.id);
        const Photo* const became = after.value(photo.id);
        if (was && became && !(was->placement == became->placement))
            photo.placement = was->placement;
    }
    return photos;
}

std::vector<size_t> movedOrder(size_t count, std::vector<size_t> places, size_t before)
{
    std::ranges::sort(places);
    const auto isMoved = [&](size_t place) { return std::ranges::binary_search(places, place); };
    std::vector<size_t> order;
    for (size_t place = 0; place <= count; ++place) {
        if (place == std::min(before, count))
            std::ranges::copy_if(places, std::back_inserter(order), [&](size_t p) { return p < count; });
        if (place < count && !isMoved(place))
            order.push_back(place);
    }
    return order;
}

} // namespace halvern
