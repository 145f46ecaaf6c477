// SPDX-License-Identifier: MIT
#pragma once

#include "panel_base/tags.h"

/// The tags of the panel's controls.
namespace halvern::features {

inline constexpr int kWidthTag = 1;
inline constexpr int kSurfaceTag = 2;
inline constexpr int kOverspillTag = 3;
inline constexpr int kResolutionTag = 4;
inline constexpr int kToneTag = 5;
inline constexpr int kFeedTag = 6;
inline constexpr int kNameTag = 7;
inline constexpr int kBindingMarginTag = 8;
inline constexpr int kBindingWidthTag = 9;
inline constexpr int kTwoSidedTag = 10;
inline constexpr int kStatusTag = 42;
inline constexpr int kOverspillStepperTag = tags::kCompanion + kOverspillTag;
inline constexpr int kBindingWidthStepperTag = tags::kCompanion + kBindingWidthTag;

} // namespace halvern::features
