// SPDX-License-Identifier: MIT
#include "platform/maker/backprint_text.h"
#include "printer/back_text.h"
#include "printer/page_stream.h"
#include "printer/sheet_layout.h"
#include "tests/support/test.h"

#include <algorithm>

namespace halvern {
namespace {

cups_page_header2_t rasterHeader()
{
    cups_page_header2_t header = {};
    header.HWResolution[0] = header.HWResolution[1] = 72;
    header.cupsPageSize[0] = 10;
    header.cupsPageSize[1] = 8;
    header.cupsImagingBBox[0] = 2;
    header.cupsImagingBBox[1] = 1;
    header.cupsImagingBBox[2] = 9;
    header.cupsImagingBBox[3] = 5;
    header.cupsWidth = 7;
    header.cupsHeight = 4;
    header.cupsBitsPerColor = 8;
    header.cupsColorSpace = CUPS_CSPACE_RGB;
    header.cupsBytesPerLine = 21;
    return header;
}

TEST(SheetLayoutTest, RefusesRastersThatThePrinterCannotTake)
{
    std::string error;
    auto refuses = [&error](auto change) {
        cups_page_header2_t header = rasterHeader();
        change(header);
        return !layOut(header, error).has_value();
    };
    EXPECT_TRUE(refuses([](auto& h) { h.cupsColorSpace = CUPS_CSPACE_CMYK; }));
    EXPECT_TRUE(refuses([](auto& h) { h.cupsBitsPerColor = 16; }));
    EXPECT_TRUE(refuses([](auto& h) { h.cupsBytesPerLine = 20; }));
    EXPECT_TRUE(refuses([](auto& h) { h.cupsHeight = 0; }));
    EXPECT_TRUE(refuses([](auto& h) { h.cupsHeight = 4'000'000'000U; }));
    EXPECT_TRUE(refuses([](auto& h) { h.HWResolution[1] = 0; }));
}

TEST(BackTextTest, ThePanelShowsTheTextWhereItIsPrinted)
{
    EXPECT_EQ(backprint::kEdge, printed_back::kEdge);
    EXPECT_EQ(backprint::kLetterHeight, printed_back::kLetterHeight);
    EXPECT_EQ(backprint::kLineHeight, printed_back::kLineHeight);
}

TEST(BackTextTest, ALongLineIsPrintedWhollyBetweenTheEdges)
{
    const PageHeader page = {1, true, true, 1200, 400, 300, 300};
    const BackText text({std::string(120, 'W'), "second"}, page);
    int first = -1;
    int last = -1;
    int inkedRows = 0;
    std::vector<uint8_t> row(size_t{page.width} * 3);
    for (uint32_t y = 0; y < page.height; ++y) {
        text.row(y, row);
        const auto dark = [](uint8_t v) { return v < 128; };
        const auto from = std::find_if(row.begin(), row.end(), dark);
        if (from == row.end())
            continue;
        ++inkedRows;
        first = first < 0 ? int(from - row.begin()) / 3 : std::min(first, int(from - row.begin()) / 3);
        last = std::max(last, int(row.rend() - std::find_if(row.rbegin(), row.rend(), dark)) / 3);
    }
    EXPECT_GT(inkedRows, 10);
    EXPECT_GE(first, 90);
    EXPECT_LE(last, 1200 - 90);
    EXPECT_GT(last, 900);
}

} // namespace
} // namespace halvern
