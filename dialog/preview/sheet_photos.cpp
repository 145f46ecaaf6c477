// SPDX-License-Identifier: MIT
#include "dialog/preview/sheet_photos.h"

#include "dialog/page/photo_facts.h"
#include "platform/foundation/threads/work_queue.h"

#include <QPointer>

#include <algorithm>

namespace halvern {

namespace {

constexpr int kLeastEdge = 128;

// Resizing a window by a few pixels reads nothing again.
int roundedUp(int edge)
{
    if (edge <= 0)
        return 0;
    int rounded = kLeastEdge;
    while (rounded < edge && rounded < kPreviewEdge)
        rounded *= 2;
    return std::min(rounded, kPreviewEdge);
}

} // namespace

void SheetPhotos::want(const std::vector<Photo>& photos, int edge, bool withDetails)
{
    edge_ = roundedUp(edge);
    withDetails_ = withDetails;
    std::map<PhotoKey, Kept> wanted;
    for (const Photo& photo : photos) {
        const PhotoKey key = keyOf(photo);
        if (wanted.contains(key))
            continue;
        const auto known = kept_.find(key);
        Kept& kept = wanted[key];
        if (known != kept_.end())
            kept = known->second;
        kept.photo = photo;
    }
    kept_ = std::move(wanted);
    readNext();
}

QImage SheetPhotos::image(const Photo& photo) const
{
    const auto known = kept_.find(keyOf(photo));
    return known == kept_.end() ? QImage() : known->second.image;
}

std::optional<PhotoDetails> SheetPhotos::details(const Photo& photo) const
{
    const auto known = kept_.find(keyOf(photo));
    return known == kept_.end() ? std::nullopt : known->second.details;
}

void SheetPhotos::readNext()
{
    if (isBusy_)
        return;
    const auto next = std::ranges::find_if(kept_, [this](const auto& each) {
        const Kept& kept = each.second;
        return !kept.isBroken && (kept.edge < edge_ || (withDetails_ && !kept.details));
    });
    if (next == kept_.end())
        return;
    isBusy_ = true;
    QPointer<SheetPhotos> self(this);
    WorkQueue().async([self, key = next->first, photo = next->second.photo, edge = edge_,
                       wantsImage = next->second.edge < edge_,
                       wantsDetails = withDetails_ && !next->second.details] {
        Answer answer{{}, edge, {}};
        if (wantsImage)
            answer.copy = readSmallCopy(photo);
        if (wantsImage && std::max(answer.copy->image.width(), answer.copy->image.height()) > edge)
            answer.copy->image =
                answer.copy->image.scaled(edge, edge, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        if (wantsDetails)
            answer.details = readPhotoFacts(photo).details;
        mainQueue().async([self, key, answer] {
            if (self)
                self->take(key, answer);
        });
    });
}

void SheetPhotos::take(const PhotoKey& key, const Answer& answer)
{
    isBusy_ = false;
    if (const auto known = kept_.find(key); known != kept_.end()) {
        Kept& kept = known->second;
        // Why it cannot be read is told when it is looked at alone.
        if (answer.copy)
            kept.isBroken = answer.copy->image.isNull();
        if (answer.copy && !kept.isBroken) {
            kept.image = answer.copy->image;
            kept.edge = answer.edge;
        }
        if (answer.details)
            kept.details = answer.details;
        if (answer.copy && answer.copy->isDamaged && !kept.photo.isDamaged)
            Q_EMIT damageFound(key.path, key.page);
        Q_EMIT changed();
    }
    readNext();
}

} // namespace halvern
