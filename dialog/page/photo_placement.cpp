// SPDX-License-Identifier: MIT
#include "dialog/page/photo_placement.h"

#include <QtMath>

#include <algorithm>

namespace halvern {

PhotoPlacement withCropOf(PhotoPlacement placement, const PhotoPlacement& other)
{
    placement.position = other.position;
    placement.zoom = other.zoom;
    placement.quarterTurns = other.quarterTurns;
    return placement;
}

PhotoPlacement held(PhotoPlacement placement)
{
    const auto share = [](double value) { return qIsFinite(value) ? std::clamp(value, 0.0, 1.0) : 0.5; };
    placement.position = {share(placement.position.x()), share(placement.position.y())};
    placement.zoom = qIsFinite(placement.zoom) ? std::clamp(placement.zoom, 1.0, kMostZoom) : 1.0;
    placement.quarterTurns = ((placement.quarterTurns % 4) + 4) % 4;
    placement.copies = std::clamp(placement.copies, 1, kMostPhotoCopies);
    return placement;
}

} // namespace halvern
