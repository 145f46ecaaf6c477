// SPDX-License-Identifier: MIT
#include "dialog/page/page_layout.h"

#include <algorithm>

namespace halvern {

namespace {

constexpr double kLeastLength = 1.0;
constexpr double kCutTolerance = 0.01;

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
    const bool wideSheet = request.paper.width() > request.paper.height();
    const bool widePhoto = request.photo.width() > request.photo.height();
    const bool square = qFuzzyCompare(request.photo.width(), request.photo.height()) ||
                        qFuzzyCompare(request.paper.width(), request.paper.height());
    return !square && wideSheet != widePhoto;
}

QSizeF scaled(const QSizeF& photo, const QSizeF& room, Scaling scaling)
{
    switch (scaling) {
    case Scaling::fit:
        return photo.scaled(room, Qt::KeepAspectRatio);
    case Scaling::fill:
        return photo.scaled(room, Qt::KeepAspectRatioByExpanding);
    case Scaling::actualSize:
        break;
    }
    return photo;
}

} // namespace

QTransform PageLayout::pageToSheet() const
{
    if (!turned)
        return {};
    return {0.0, -1.0, 1.0, 0.0, 0.0, page.width()};
}

PageLayout layOut(const LayoutRequest& request)
{
    const QSizeF paper = sane(request.paper);
    const QSizeF photo = sane(request.photo);
    PageLayout layout;
    layout.turned = turns(request);
    layout.page = layout.turned ? paper.transposed() : paper;
    layout.imageable = layout.pageToSheet().inverted().mapRect(request.imageable);
    const QSizeF size = scaled(photo, layout.imageable.size(), request.scaling);
    const QSizeF room = layout.imageable.size() - size;
    const QPointF corner(layout.imageable.left() + room.width() * std::clamp(request.position.x(), 0.0, 1.0),
                         layout.imageable.top() + room.height() * std::clamp(request.position.y(), 0.0, 1.0));
    layout.photo = QRectF(corner, size);
    layout.isCut = room.width() < -kCutTolerance || room.height() < -kCutTolerance;
    return layout;
}

} // namespace halvern
