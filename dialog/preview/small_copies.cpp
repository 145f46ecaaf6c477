// SPDX-License-Identifier: MIT
#include "dialog/preview/small_copies.h"

#include "dialog/page/photo_opening.h"
#include "platform/foundation/threads/work_queue.h"

#include <QPointer>

#include <algorithm>

namespace halvern {

namespace {

constexpr size_t kMostKept = 6;

} // namespace

bool SmallCopies::isWanted(const QString& path, int page) const
{
    return wanted_.path == path && wanted_.page == page;
}

QImage SmallCopies::find(const Photo& photo)
{
    const bool isAskedAlready = isBusy_ && isWanted(photo.path, photo.page);
    wanted_ = photo;
    if (!photo.preview.isNull())
        return photo.preview;
    const auto found = std::ranges::find_if(
        kept_, [&](const Kept& kept) { return kept.path == photo.path && kept.page == photo.page; });
    if (found != kept_.end()) {
        std::rotate(kept_.begin(), found, found + 1);
        return kept_.front().image;
    }
    if (!isBusy_ && !isAskedAlready)
        read();
    return {};
}

void SmallCopies::read()
{
    isBusy_ = true;
    QPointer<SmallCopies> self(this);
    WorkQueue().async([self, photo = wanted_] {
        const SmallCopy copy = readSmallCopy(photo);
        mainQueue().async([self, path = photo.path, page = photo.page, wasDamaged = photo.isDamaged, copy] {
            if (!self)
                return;
            self->isBusy_ = false;
            self->kept_.push_front({path, page, copy.image});
            if (self->kept_.size() > kMostKept)
                self->kept_.pop_back();
            if (!self->isWanted(path, page)) {
                self->find(Photo(self->wanted_));
                return;
            }
            if (copy.isDamaged && !wasDamaged)
                Q_EMIT self->damageFound(path, page);
            if (copy.image.isNull())
                Q_EMIT self->failed(copy.problem);
            else
                Q_EMIT self->ready(copy.image);
        });
    });
}

} // namespace halvern
