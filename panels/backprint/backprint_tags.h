// SPDX-License-Identifier: MIT
#pragma once

/// The tags of the Backprint view's controls.
namespace halvern::backprint {

inline constexpr int kLine1 = 1;
inline constexpr int kLine2 = 2;
inline constexpr int kTokenMenu = 256;
inline constexpr int kInsertControl = 257;
inline constexpr int kToggleLine1 = 512;
inline constexpr int kToggleLine2 = 513;
inline constexpr int kToggleDebugLog = 514;

/// The line that a toggle governs; the log's toggle governs a third one that no view has.
constexpr int lineOfToggle(int tag)
{
    return (tag & 15) + 1;
}

} // namespace halvern::backprint
