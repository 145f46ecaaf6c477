// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/screen_colours.h"

#include <QObject>
#include <QRect>

namespace halvern {

/// Brings what the preview is about to draw into the screen's colours, on a worker. Main thread only; never
/// waits.
class ScreenConverter : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// A piece of a photo, and where in the photo it lies.
    struct Piece {
        QImage image;
        QRect place;
    };

    void setPlan(const ScreenPlan& plan);

    /// Pieces of another photo come, or in other dots: none that was made before is to be shown.
    void forget();

    /// The piece in the screen's colours. If that takes a while, ready() follows, and the answer is the last
    /// piece that was made, or one without an image: the same photo moments ago.
    const Piece& find(const Piece& wanted);

    /// What bare paper looks like; white until that is known.
    QColor paper() const { return paper_; }

Q_SIGNALS:
    void ready();

private:
    struct Made {
        ScreenPlan plan;
        std::shared_ptr<const ScreenTransform> transform;
        Piece piece;
        QColor paper;
    };

    bool isDone(const Piece& wanted) const;
    void start();
    void take(qint64 source, const Made& made);

    ScreenPlan plan_;
    std::shared_ptr<const ScreenTransform> transform_; // of plan_; null: not made yet
    Piece wanted_;
    Piece done_;
    qint64 doneFrom_ = 0; // what done_ was made of
    QColor paper_ = Qt::white;
    bool isBusy_ = false;
    bool isForgotten_ = false; // what is being made is not wanted any more
};

} // namespace halvern
