// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/adjust/adjust.h"

namespace halvern {

/// What the printer will do to a photo, as far as a screen can show it. A value, any thread.
struct Look {
    adjust::ColorAdjustments colors;
    adjust::Sharpening sharpening;
    bool isGray = false; ///< in the end it comes out in shades of gray

    bool changesColors() const { return colors != adjust::ColorAdjustments(); }

    bool sharpens() const { return sharpening.radius >= 1.0 && sharpening.intensity > 0.0; }

    bool operator==(const Look&) const = default;
};

} // namespace halvern
