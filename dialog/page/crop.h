// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/page_layout.h"

namespace halvern {

/// The part of a photo that is printed, and how a user changes it. Places are shares of the photo as its user
/// has turned it: 0 left or top, 1 right or bottom. Any thread.

/// What of the photo is seen.
QRectF cropOf(const PageLayout& layout);

/// The placement that shows the photo enlarged so much, with `centre` in the middle as far as the photo goes.
PhotoPlacement croppedAround(const PageLayout& layout, const PhotoPlacement& before, const QPointF& centre,
                             double zoom);

/// Another quarter turn clockwise, of the same part.
PhotoPlacement turnedOnce(const PhotoPlacement& placement);

} // namespace halvern
