// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace halvern {

struct Chromaticity {
    double x = 0.0;
    double y = 0.0;
};

/// The colours that a colour space is made of.
struct Primaries {
    Chromaticity white;
    Chromaticity red;
    Chromaticity green;
    Chromaticity blue;
};

inline constexpr Chromaticity kD65{0.3127, 0.3290};
inline constexpr Primaries kSrgbPrimaries{kD65, {0.64, 0.33}, {0.30, 0.60}, {0.15, 0.06}};
inline constexpr Primaries kDisplayP3Primaries{kD65, {0.680, 0.320}, {0.265, 0.690}, {0.150, 0.060}};
inline constexpr Primaries kWidePrimaries{kD65, {0.708, 0.292}, {0.170, 0.797}, {0.131, 0.046}};

/// Whether they are the same to what a file can say of them.
bool isNear(const Primaries& one, const Primaries& other);

/// An ICC profile for what a file says in numbers only; gamma 0 is sRGB's curve. Empty if there is none.
QByteArray profileFor(const Primaries& primaries, double gamma);

} // namespace halvern
