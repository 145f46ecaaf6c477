// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <cups/raster.h>
#include <optional>
#include <span>
#include <string>

/// Where a raster page lies on its sheet: CUPS sends the printable part only, the printer keeps whole sheets.
namespace halvern {

struct SheetLayout {
    uint32_t width = 0;
    uint32_t height = 0;
    uint32_t left = 0;
    uint32_t top = 0;
};

/// The sheet in the raster's pixels. Nothing, and a sentence in `error`, if the raster is of a kind that the
/// printer does not take (other than 8 bits a channel, RGB or grey), or too large.
std::optional<SheetLayout> layOut(const cups_page_header2_t& header, std::string& error);

/// Puts one raster row in its place in a row of the sheet (three bytes a pixel), white beside it.
void placeRow(const cups_page_header2_t& header, const SheetLayout& sheet, std::span<const uint8_t> raster,
              std::span<uint8_t> row);

} // namespace halvern
