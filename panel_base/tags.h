// SPDX-License-Identifier: MIT
#pragma once

/// The tag convention: a control's tag is its option's number and a role in the upper bits.
namespace halvern::tags {

inline constexpr int kRestoreDefaults = 32;

/// The companion of control n, a text field as a rule, is 0x140 + n.
inline constexpr int kCompanion = 0x140;
inline constexpr int kToggle = 0x200;
inline constexpr int kDecrement = 0x280;
inline constexpr int kIncrement = 0x1400;

constexpr bool has(int tag, int bits)
{
    return (tag & bits) != 0;
}

/// The option's tag of a companion's; any other tag as it is.
constexpr int withoutCompanionBits(int tag)
{
    return has(tag, kCompanion) ? tag ^ kCompanion : tag;
}

} // namespace halvern::tags
