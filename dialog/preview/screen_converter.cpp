// SPDX-License-Identifier: MIT
#include "dialog/preview/screen_converter.h"

#include "platform/foundation/threads/work_queue.h"

#include <QPointer>

namespace halvern {

void ScreenConverter::setPlan(const ScreenPlan& plan)
{
    if (plan == plan_)
        return;
    plan_ = plan;
    transform_.reset();
    for (auto& [place, shown] : shown_)
        shown.doneFrom = 0;
    if (plan_.changesNothing())
        paper_ = Qt::white;
}

const ScreenConverter::Piece& ScreenConverter::find(const Piece& wanted, size_t place)
{
    Shown& shown = shown_[place];
    shown.wanted = wanted;
    if (plan_.changesNothing() || wanted.image.isNull())
        return shown.wanted;
    const bool isDone = shown.doneFrom == wanted.image.cacheKey() && shown.done.place == wanted.place;
    if (!isDone && !isBusy_)
        start(place, wanted);
    return shown.done;
}

void ScreenConverter::forget()
{
    shown_.clear();
    isForgotten_ = isBusy_;
}

void ScreenConverter::start(size_t place, const Piece& wanted)
{
    isBusy_ = true;
    isForgotten_ = false;
    QPointer<ScreenConverter> self(this);
    WorkQueue().async([self, plan = plan_, transform = transform_, place, piece = wanted] {
        Made made{plan, transform ? transform : std::make_shared<const ScreenTransform>(plan), piece, {}};
        made.piece.image = made.transform->converted(piece.image);
        made.paper = made.transform->paper();
        mainQueue().async([self, place, source = piece.image.cacheKey(), made] {
            if (self)
                self->take(place, source, made);
        });
    });
}

void ScreenConverter::take(size_t place, qint64 source, const Made& made)
{
    isBusy_ = false;
    if (made.plan == plan_) {
        transform_ = made.transform;
        paper_ = made.paper;
        if (!isForgotten_) {
            shown_[place].done = made.piece;
            shown_[place].doneFrom = source;
        }
    }
    Q_EMIT ready();
}

} // namespace halvern
