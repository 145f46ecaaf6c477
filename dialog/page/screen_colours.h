// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/colour_plan.h"

#include <QColor>
#include <QImage>

#include <memory>
#include <optional>

namespace halvern {

/// What a screen shows of a photo: its colours, or those of the print that it becomes. A value.
struct ScreenPlan {
    QByteArray monitor;              ///< the screen's ICC profile; empty: sRGB
    std::optional<ColourPlan> proof; ///< the conversion whose result is simulated
    bool showsPaper = false;         ///< with the paper's own white and black
    bool marksGamut = false;         ///< what the print cannot show is painted over

    bool changesNothing() const { return monitor.isEmpty() && !proof; }

    bool operator==(const ScreenPlan&) const = default;
};

/// Whether a print for this profile can be simulated. Any thread.
bool canProof(const QByteArray& profile);

/// Whether this is a screen's profile. Any thread.
bool isScreenProfile(const QByteArray& profile);

/// Brings pictures into a screen's colours. To make one takes up to a second. Any thread, several
/// at once.
class ScreenTransform {
public:
    explicit ScreenTransform(const ScreenPlan& plan);

    /// On all cores. The answer has the size of `srgb`, and its transparency.
    QImage converted(const QImage& srgb) const;

    /// What the bare paper looks like.
    QColor paper() const;

private:
    std::shared_ptr<void> transform_; // null: nothing is converted
};

} // namespace halvern
