// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace halvern {

/// What becomes of colours that the target cannot show.
enum class ColourIntent : quint8 { perceptual, relative, saturation, absolute };

/// Who converts a photo's colours into the paper's, as the user wants it. A value.
struct ColourSettings {
    bool isByDialog = false; ///< else the printer does, and is given sRGB
    QString profile = {};    ///< a file; empty: the one that the printer comes with
    ColourIntent intent = ColourIntent::perceptual;
    bool compensatesBlack = true;

    bool operator==(const ColourSettings&) const = default;
};

/// Into what a job's colours are converted, and how. A value.
struct ColourPlan {
    QByteArray target; ///< the ICC profile; empty: sRGB
    ColourIntent intent = ColourIntent::perceptual;
    bool compensatesBlack = true; ///< the darkest tone becomes the target's darkest

    bool operator==(const ColourPlan&) const = default;
};

} // namespace halvern
