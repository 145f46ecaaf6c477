// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QTransform>

namespace halvern {

enum class Scaling { fit, fill, actualSize };
enum class PageTurn { automatic, portrait, landscape };

/// What decides where a photo lies on its sheet. Lengths are points, y grows downwards.
struct LayoutRequest {
    QSizeF paper;     ///< the upright sheet
    QRectF imageable; ///< of the upright sheet, origin at its top left corner
    QSizeF photo;     ///< the photo's own size on paper
    Scaling scaling = Scaling::fit;
    PageTurn turn = PageTurn::automatic;
    QPointF position{0.5, 0.5}; ///< where the spare room or the cut goes: 0 left or top, 1 right or bottom
};

/// Where the photo lies. The page is the sheet as the user looks at it, turned or not.
struct PageLayout {
    bool turned = false; ///< a quarter turn: the sheet's left edge is the page's top
    QSizeF page;
    QRectF imageable; ///< of the page
    QRectF photo;     ///< on the page; may reach beyond the imageable area when it is cut
    bool isCut = false;

    /// What of the photo is printed.
    QRectF visible() const { return photo.intersected(imageable); }

    /// From the page to the upright sheet.
    QTransform pageToSheet() const;
};

/// Any sizes, also absurd ones, give a finite result. Any thread.
PageLayout layOut(const LayoutRequest& request);

} // namespace halvern
