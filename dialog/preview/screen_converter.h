// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/screen_colours.h"

#include <QObject>
#include <QRect>

#include <map>

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

    /// Pieces of other photos come, or in other dots: none that was made before is to be shown.
    void forget();

    /// The piece in the screen's colours. If that takes a while, ready() follows: ask again then, for one is
    /// made at a time. The answer is the last piece that was made for the photo at this place of the sheet,
    /// which is the same photo moments ago, or one without an image.
    const Piece& find(const Piece& wanted, size_t place);

    /// What bare paper looks like; white until that is known.
    QColor paper() const { return paper_; }

Q_SIGNALS:
    void ready();

private:
    struct Shown {
        Piece wanted;
        Piece done;
        qint64 doneFrom = 0; // what `done` was made of
    };

    struct Made {
        ScreenPlan plan;
        std::shared_ptr<const ScreenTransform> transform;
        Piece piece;
        QColor paper;
    };

    void start(size_t place, const Piece& wanted);
    void take(size_t place, qint64 source, const Made& made);

    ScreenPlan plan_;
    std::shared_ptr<const ScreenTransform> transform_; // of plan_; null: not made yet
    std::map<size_t, Shown> shown_;                    // by their places on the sheet
    QColor paper_ = Qt::white;
    bool isBusy_ = false;
    bool isForgotten_ = false; // what is being made is not wanted any more
};

} // namespace halvern
