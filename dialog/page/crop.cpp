// SPDX-License-Identifier: MIT
#include "dialog/page/crop.h"

#include <algorithm>

namespace halvern {

namespace {

// A turn by the layout is none of the user's.
QSizeF asUserTurned(const QSizeF& size, const PageLayout& layout)
{
    return turnedSize(size, layout.layoutsTurns);
}

double positionFor(double centre, double frame, double photo, double before)
{
    const double seen = frame / photo;
    if (seen >= 1.0)
        return before;
    const double left = std::clamp(centre - seen / 2.0, 0.0, 1.0 - seen);
    return left / (1.0 - seen);
}

} // namespace

QRectF cropOf(const PageLayout& layout)
{
    if (layout.photo.isEmpty())
        return {0.0, 0.0, 1.0, 1.0};
    const QRectF seen = layout.visible();
    const QRectF onPage((seen.left() - layout.photo.left()) / layout.photo.width(),
                        (seen.top() - layout.photo.top()) / layout.photo.height(),
                        seen.width() / layout.photo.width(), seen.height() / layout.photo.height());
    if (layout.layoutsTurns == 0)
        return onPage;
    // The photo's left edge is the page's top.
    return {onPage.top(), 1.0 - onPage.right(), onPage.height(), onPage.width()};
}

PhotoPlacement croppedAround(const PageLayout& layout, const PhotoPlacement& before, const QPointF& centre,
                             double zoom)
{
    PhotoPlacement placement = held(before);
    const double old = placement.zoom;
    placement.zoom = zoom;
    placement = held(placement);
    const QSizeF frame = asUserTurned(layout.frame.size(), layout);
    const QSizeF photo = asUserTurned(layout.photo.size(), layout) * (placement.zoom / old);
    placement.position = {positionFor(centre.x(), frame.width(), photo.width(), placement.position.x()),
                          positionFor(centre.y(), frame.height(), photo.height(), placement.position.y())};
    return held(placement);
}

PhotoPlacement turnedOnce(const PhotoPlacement& placement)
{
    PhotoPlacement turned = placement;
    turned.quarterTurns = (placement.quarterTurns + 1) % 4;
    turned.position = positionOnPage(placement.position, 1);
    return held(turned);
}

} // namespace halvern
