// SPDX-License-Identifier: MIT
#include "dialog/preview/small_copies.h"

#include "dialog/page/photo_opening.h"
#include "platform/foundation/threads/work_queue.h"

#include <QPointer>

#include <algorithm>

namespace halvern {

namespace {

constexpr size_t kMostCopiesKept = 6;

} // namespace

QImage SmallCopies::find(const Photo& photo)
{
    wanted_ = photo;
    if (!photo.preview.isNull())
        return photo.preview;
    const auto found = std::ranges::find(kept_, keyOf(photo), &Kept::photo);
    if (found != kept_.end()) {
        std::rotate(kept_.begin(), found, found + 1);
        return kept_.front().image;
    }
    if (!isBusy_)
        read();
    return {};
}

void SmallCopies::read()
{
    isBusy_ = true;
    QPointer<SmallCopies> self(this);
    WorkQueue().async([self, photo = wanted_] {
        const SmallCopy copy = readSmallCopy(photo);
        mainQueue().async([self, photo, copy] {
            if (self)
                self->take(photo, copy);
        });
    });
}

void SmallCopies::take(const Photo& photo, const SmallCopy& copy)
{
    isBusy_ = false;
    kept_.push_front({keyOf(photo), copy.image});
    if (kept_.size() > kMostCopiesKept)
        kept_.pop_back();
    if (copy.isDamaged && !photo.isDamaged)
        Q_EMIT damageFound(photo.path, photo.page);
    if (copy.image.isNull())
        Q_EMIT failed(copy.problem);
    if (keyOf(wanted_) != keyOf(photo))
        find(Photo(wanted_));
    else if (!copy.image.isNull())
        Q_EMIT ready(copy.image);
}

} // namespace halvern
