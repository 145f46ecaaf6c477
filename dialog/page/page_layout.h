// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/photo_placement.h"

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
    PhotoPlacement placement = {};
};

/// Where a photo lies. The page is the sheet as the user looks at it, turned or not.
struct PageLayout {
    bool turned = false; ///< a quarter turn: the sheet's left edge is the page's top
    QSizeF page;
    QRectF imageable;     ///< of the page
    QRectF frame;         ///< what of the page is the photo's; all that can be printed on, or a part of it
    QRectF photo;         ///< on the page, as turned; may reach beyond the frame when it is cut
    int quarterTurns = 0; ///< of the photo on the page, clockwise
    int layoutsTurns = 0; ///< 1 where the layout has turned it, too, to suit its frame
    bool isCut = false;

    /// What of the photo is printed.
    QRectF visible() const { return photo.intersected(frame).intersected(imageable); }

    /// From the page to the upright sheet.
    QTransform pageToSheet() const;
};

/// Any sizes, also absurd ones, give a finite result. Any thread.
PageLayout layOut(const LayoutRequest& request);

/// The page of a sheet, turned or not, without a photo: its frame is all that can be printed on.
PageLayout emptyPage(const QSizeF& paper, const QRectF& imageable, bool turned);

/// How a photo is laid into a frame.
struct FramedPhoto {
    QSizeF size; ///< the photo's own on paper, points, before it is turned
    Scaling scaling = Scaling::fit;
    double share = 1.0;   ///< of its own size, where that is what is printed
    int layoutsTurns = 0; ///< 1: it is turned once more than its user says
    PhotoPlacement placement = {};
};

/// Whether one is wide and the other high.
bool areAcross(const QSizeF& one, const QSizeF& other);

/// A photo's size on the page, as its user has turned it.
QSizeF turnedSize(const QSizeF& size, int quarterTurns);

/// Lays the photo into the page's frame.
void layInFrame(PageLayout& layout, const FramedPhoto& photo);

/// A placement's position as shares of the page, where the layout has turned the photo, and back.
QPointF positionOnPage(const QPointF& position, int layoutsTurns);
QPointF positionOfPhoto(const QPointF& onPage, int layoutsTurns);

/// How many pixels of the photo there are for an inch of paper; 0 where the photo has none of its own.
double pixelsPerInch(const PageLayout& layout, const QSize& pixels);

/// Below so many pixels an inch a photo looks soft at arm's length.
inline constexpr double kSoftPixelsPerInch = 150.0;

} // namespace halvern
