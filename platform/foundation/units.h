// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

/// Lengths and resolutions that everybody counts in.
namespace HALVERN_EXPORT halvern {

inline constexpr double kPointsPerInch = 72.0;
inline constexpr double kMillimetresPerInch = 25.4;
inline constexpr double kMetresPerInch = kMillimetresPerInch / 1000.0;
inline constexpr double kPointsPerMillimetre = kPointsPerInch / kMillimetresPerInch;

/// A printer's dots per inch, where nobody says.
inline constexpr int kUsualResolution = 300;

/// No printer has more: what a description says beyond that is a mistake in it.
inline constexpr int kMostResolution = 9600;

} // namespace halvern
