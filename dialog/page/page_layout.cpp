// SPDX-License-Identifier: MIT
#include "dialog/page/page_layout.h"

#include "platform/foundation/units.h"

#include <algorithm>

namespace halvern {

namespace {

constexpr double kLeastLength = 1.0;
constexpr double kCutTolerance = 0.01;
constexpr double kDot = 0.5; // points, of a coarse printer

QSizeF sane(const QSizeF& size)
{
    return {std::max(size.width(), kLeastLength), std::max(size.height(), kLeastLength)};
}

bool turns(const LayoutRequest& request)
{
    switch (request.turn) {
    case PageTurn::portrait:
        return false;
    case PageTurn::landscape:
        return true;
    case PageTurn::automatic:
        break;
    }
    return areAcross(request.paper, turnedSize(request.photo, request.placement.quarterTurns));
}

QSizeF scaled(const QSizeF& photo, const QSizeF& room, const FramedPhoto& how)
{
    switch (how.scaling) {
    case Scaling::fit:
        return photo.scaled(room, Qt::KeepAspectRatio);
    case Scaling::fill:
        return photo.scaled(room, Qt::KeepAspectRatioByExpanding);
    case Scaling::actualSize:
        break;
    }
    return photo * how.share;
}

} // namespace

bool areAcross(const QSizeF& one, const QSizeF& other)
{
    const bool isSquare =
        qFuzzyCompare(one.width(), one.height()) || qFuzzyCompare(other.width(), other.height());
    return !isSquare && (one.width() > one.height()) != (other.width() > other.height());
}

QSizeF turnedSize(const QSizeF& size, int quarterTurns)
{
    return quarterTurns % 2 != 0 ? size.transposed() : size;
}

QTransform PageLayout::pageToSheet() const
{
    if (!turned)
        return {};
    return {0.0, -1.0, 1.0, 0.0, 0.0, page.width()};
}

PageLayout emptyPage(const QSizeF& paper, const QRectF& imageable, bool turned)
{
    PageLayout layout;
    layout.turned = turned;
    layout.page = turned ? sane(paper).transposed() : sane(paper);
    layout.imageable = layout.pageToSheet().inverted().mapRect(imageable);
    layout.frame = layout.imageable;
    return layout;
}

QPointF positionOnPage(const QPointF& position, int turns)
{
    return turns == 0 ? position : QPointF(1.0 - position.y(), position.x());
}

QPointF positionOfPhoto(const QPointF& onPage, int turns)
{
    return turns == 0 ? onPage : QPointF(onPage.y(), 1.0 - onPage.x());
}

void layInFrame(PageLayout& layout, const FramedPhoto& photo)
{
    const PhotoPlacement how = held(photo.placement);
    layout.layoutsTurns = photo.layoutsTurns;
    layout.quarterTurns = (how.quarterTurns + photo.layoutsTurns) % 4;
    const QSizeF turned = turnedSize(sane(photo.size), layout.quarterTurns);
    const QSizeF size = scaled(turned, layout.frame.size(), photo) * how.zoom;
    const QSizeF room = layout.frame.size() - size;
    const QPointF position = positionOnPage(how.position, layout.layoutsTurns);
    const QPointF corner(layout.frame.left() + room.width() * position.x(),
                         layout.frame.top() + room.height() * position.y());
    layout.photo = QRectF(corner, size);
    // A place that begins at a whole dot may begin a little before the printer does.
    const QRectF printed = layout.imageable.adjusted(-kDot, -kDot, kDot, kDot);
    layout.isCut = room.width() < -kCutTolerance || room.height() < -kCutTolerance ||
                   !printed.contains(layout.photo.intersected(layout.frame));
}

PageLayout layOut(const LayoutRequest& request)
{
    PageLayout layout = emptyPage(request.paper, request.imageable, turns(request));
    layInFrame(layout, {request.photo, request.scaling, 1.0, 0, request.placement});
    return layout;
}

double pixelsPerInch(const PageLayout& layout, const QSize& pixels)
{
    const double wide = layout.quarterTurns % 2 != 0 ? pixels.height() : pixels.width();
    return wide / std::max(layout.photo.width(), kLeastLength) * kPointsPerInch;
}

} // namespace halvern
