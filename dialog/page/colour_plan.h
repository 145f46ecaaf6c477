// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace halvern {

/// What becomes of colours that the target cannot show.
enum class ColourIntent : quint8 { perceptual, relative, saturation, absolute };

/// Into what a job's colours are converted, and how. A value.
struct ColourPlan {
    QByteArray target; ///< the ICC profile; empty: sRGB
    ColourIntent intent = ColourIntent::perceptual;
    bool compensatesBlack = true; ///< the darkest tone becomes the target's darkest

    bool operator==(const ColourPlan&) const = default;
};

} // namespace halvern
