// SPDX-License-Identifier: MIT
#pragma once

namespace halvern::adjust {

/// What each of sRGB's channels gives to grey, in 65536ths.
inline constexpr int kWeightBits = 16;
inline constexpr int kRedWeight = 13933;
inline constexpr int kGreenWeight = 46871;
inline constexpr int kBlueWeight = 4732;
static_assert(kRedWeight + kGreenWeight + kBlueWeight == 1 << kWeightBits);

} // namespace halvern::adjust
