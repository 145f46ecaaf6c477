// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/adjust/look.h"

#include <QImage>
#include <QRect>

namespace halvern {

/// A photo made ready for the screen, in the pixels that the screen shows and no more. What a step has made
/// is kept until something that it depends on changes, so a moved slider costs only the last step. One thread
/// at a time.
class ScreenPhoto {
public:
    /// The small copy that is always there.
    void setPreview(const QImage& preview);

    const QImage& preview() const { return preview_; }

    /// The copy for part(); null: there is none yet.
    void setDetail(const QImage& detail) { detail_ = detail; }

    void setLook(const Look& look) { look_ = look; }

    const Look& look() const { return look_; }

    /// The whole photo with its colours adjusted, scaled down to `pixels` if it has more.
    const QImage& whole(const QSize& pixels);

    /// What a window of the photo shows when the photo is scaled to `size` pixels: adjusted, then sharpened.
    /// `window` lies within that size; the answer has its size.
    const QImage& part(const QSize& size, const QRect& window);

private:
    // A picture and what it was made from.
    struct Scaled {
        qint64 source = 0;
        QSize size;
        QRect window;
        QImage image;
    };

    struct Finished {
        qint64 source = 0;
        Look look;
        QImage image;
    };

    void cutOut(const QSize& size, const QRect& window);

    QImage preview_;
    QImage detail_;
    Look look_;
    Scaled whole_;
    Finished adjustedWhole_;
    Scaled part_;
    QRect roomAround_; // part_.window with what the sharpening looks at beyond it
    Finished finishedPart_;
};

} // namespace halvern
