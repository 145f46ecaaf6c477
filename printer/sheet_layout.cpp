// SPDX-License-Identifier: MIT
#include "printer/sheet_layout.h"

#include "printer/page_stream.h"

#include <algorithm>
#include <cmath>

namespace halvern {

namespace {

bool isColor(const cups_page_header2_t& header)
{
    return header.cupsColorSpace == CUPS_CSPACE_RGB || header.cupsColorSpace == CUPS_CSPACE_SRGB ||
           header.cupsColorSpace == CUPS_CSPACE_ADOBERGB;
}

bool isGray(const cups_page_header2_t& header)
{
    return header.cupsColorSpace == CUPS_CSPACE_W || header.cupsColorSpace == CUPS_CSPACE_SW ||
           header.cupsColorSpace == CUPS_CSPACE_K;
}

// The exact size where the chain gives it, the one in whole points otherwise.
double points(float exact, unsigned whole)
{
    return exact > 0.0F ? static_cast<double>(exact) : static_cast<double>(whole);
}

uint32_t pixels(double points, unsigned dpi)
{
    return static_cast<uint32_t>(std::clamp<long long>(std::llround(points * dpi / 72.0), 0, kMaxPageSide));
}

} // namespace

std::optional<SheetLayout> layOut(const cups_page_header2_t& header, std::string& error)
{
    const bool color = isColor(header);
    const size_t rowBytes = size_t{header.cupsWidth} * (color ? 3 : 1);
    if ((!color && !isGray(header)) || header.cupsBitsPerColor != 8 ||
        header.cupsColorOrder != CUPS_ORDER_CHUNKED || header.cupsBytesPerLine < rowBytes) {
        error = "The printer takes pages in RGB or gray with 8 bits a channel only.";
        return std::nullopt;
    }
    if (header.cupsWidth == 0 || header.cupsHeight == 0 || header.cupsWidth > kMaxPageSide ||
        header.cupsHeight > kMaxPageSide || header.cupsBytesPerLine > kMaxPageSide * 4 ||
        header.HWResolution[0] == 0 || header.HWResolution[1] == 0) {
        error = "The page is empty, or too large for the printer.";
        return std::nullopt;
    }
    const auto [xDpi, yDpi] = header.HWResolution;
    const double height = points(header.cupsPageSize[1], header.PageSize[1]);
    const double upper = points(header.cupsImagingBBox[3], header.ImagingBoundingBox[3]);
    SheetLayout sheet;
    sheet.width =
        std::max(header.cupsWidth, pixels(points(header.cupsPageSize[0], header.PageSize[0]), xDpi));
    sheet.height = std::max(header.cupsHeight, pixels(height, yDpi));
    sheet.left = std::min(pixels(points(header.cupsImagingBBox[0], header.ImagingBoundingBox[0]), xDpi),
                          sheet.width - header.cupsWidth);
    sheet.top = std::min(pixels(upper > 0.0 ? height - upper : 0.0, yDpi), sheet.height - header.cupsHeight);
    return sheet;
}

void placeRow(const cups_page_header2_t& header, const SheetLayout& sheet, std::span<const uint8_t> raster,
              std::span<uint8_t> row)
{
    std::fill(row.begin(), row.end(), uint8_t{0xff});
    uint8_t* to = row.data() + size_t{sheet.left} * 3;
    if (isColor(header)) {
        std::copy_n(raster.begin(), size_t{header.cupsWidth} * 3, to);
        return;
    }
    const uint8_t flip = header.cupsColorSpace == CUPS_CSPACE_K ? 0xff : 0;
    for (size_t x = 0; x < header.cupsWidth; ++x, to += 3)
        std::fill_n(to, 3, static_cast<uint8_t>(raster[x] ^ flip));
}

} // namespace halvern
