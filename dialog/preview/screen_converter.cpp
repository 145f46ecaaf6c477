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
    doneFrom_ = 0;
    if (plan_.changesNothing())
        paper_ = Qt::white;
}

bool ScreenConverter::isDone(const Piece& wanted) const
{
    return doneFrom_ == wanted.image.cacheKey() && done_.place == wanted.place;
}

const ScreenConverter::Piece& ScreenConverter::find(const Piece& wanted)
{
    wanted_ = wanted;
    if (plan_.changesNothing() || wanted.image.isNull())
        return wanted_;
    if (!isDone(wanted) && !isBusy_)
        start();
    return done_;
}

void ScreenConverter::forget()
{
    done_ = {};
    doneFrom_ = 0;
    isForgotten_ = isBusy_;
}

void ScreenConverter::start()
{
    isBusy_ = true;
    isForgotten_ = false;
    QPointer<ScreenConverter> self(this);
    WorkQueue().async([self, plan = plan_, transform = transform_, piece = wanted_] {
        Made made{plan, transform ? transform : std::make_shared<const ScreenTransform>(plan), piece, {}};
        made.piece.image = made.transform->converted(piece.image);
        made.paper = made.transform->paper();
        mainQueue().async([self, source = piece.image.cacheKey(), made] {
            if (self)
                self->take(source, made);
        });
    });
}

void ScreenConverter::take(qint64 source, const Made& made)
{
    isBusy_ = false;
    if (made.plan == plan_) {
        transform_ = made.transform;
        paper_ = made.paper;
        if (!isForgotten_) {
            done_ = made.piece;
            doneFrom_ = source;
        }
    }
    Q_EMIT ready();
}

} // namespace halvern
