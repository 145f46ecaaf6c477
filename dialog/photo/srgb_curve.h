// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace halvern {

/// sRGB's curve as ICC's parametric curve of the third kind has it: (a x + b)^g from d on, c x below it; in
/// the order g, a, b, c, d. Little CMS counts that kind as its fourth.
inline constexpr std::array<double, 5> kSrgbCurve{2.4, 1.0 / 1.055, 0.055 / 1.055, 1.0 / 12.92, 0.04045};

} // namespace halvern
