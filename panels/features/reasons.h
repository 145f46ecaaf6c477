// SPDX-License-Identifier: MIT
#pragma once

/// Why a control is disabled, as keys of the strings table.
namespace halvern::reasons {

inline constexpr char kNoSheets[] = "The printer has no cut sheets loaded.";
inline constexpr char kSheetFeedNotOffered[] = "The sheet feed was not available when this page was made.";
inline constexpr char kNoRolls[] = "The printer has no paper roll loaded.";
inline constexpr char kNeedsSheetFeed[] = "Only for cut sheets. Choose the sheet feed first.";
inline constexpr char kNeedsRollFeed[] = "Only for paper rolls. Choose the roll feed first.";
inline constexpr char kNotThisSurface[] = "No roll of this width has this surface.";
inline constexpr char kNotThisResolution[] = "The chosen paper cannot be printed at this resolution.";
inline constexpr char kNoTones[] = "The loaded papers have one tone only.";
inline constexpr char kNotThisTone[] = "The loaded papers do not have this tone.";
inline constexpr char kNoTwoSided[] = "Two-sided printing needs cut sheets and a printer with a duplex unit.";
inline constexpr char kNeedsTwoSided[] = "Choose two-sided printing first.";
inline constexpr char kNeedsMargin[] = "Choose a binding margin first.";
inline constexpr char kNotThisEdge[] = "The sheet is not turned over this edge.";

} // namespace halvern::reasons
