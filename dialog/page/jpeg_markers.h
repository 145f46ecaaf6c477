// SPDX-License-Identifier: MIT
#pragma once

/// The second byte of a JPEG file's markers; the first is kPadding.
namespace halvern::jpeg_marker {

inline constexpr int kPadding = 0xFF;
inline constexpr int kBaseline = 0xC0;
inline constexpr int kExtended = 0xC1;
inline constexpr int kHuffmanTables = 0xC4;
inline constexpr int kFirstRestart = 0xD0;

} // namespace halvern::jpeg_marker
