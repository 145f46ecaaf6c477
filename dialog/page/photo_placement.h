// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>

namespace halvern {

/// What the user has decided for one photo, whatever it is printed on. A value; it stays with its photo.
struct PhotoPlacement {
    QPointF position{
        0.5, 0.5};     ///< where the spare room or the cut goes: 0 left or top, 1 right or bottom, each way
    double zoom = 1.0; ///< how much larger than the page's scaling makes it, 1 to kMostZoom
    int quarterTurns = 0; ///< clockwise, beyond what the camera has noted
    int copies = 1;       ///< of this photo in each copy of the job
    bool isIncluded = true;

    bool operator==(const PhotoPlacement&) const = default;

    bool isSameCrop(const PhotoPlacement& other) const
    {
        return position == other.position && zoom == other.zoom && quarterTurns == other.quarterTurns;
    }
};

inline constexpr double kMostZoom = 16.0;
inline constexpr int kMostPhotoCopies = 999;

/// With its crop and turn taken from another one; how often it is printed stays.
PhotoPlacement withCropOf(PhotoPlacement placement, const PhotoPlacement& other);

/// The nearest placement that can be: numbers held to their limits, turns to 0 to 3.
PhotoPlacement held(PhotoPlacement placement);

} // namespace halvern
