// SPDX-License-Identifier: MIT
// The filter for pages: rastertohalvern job user title copies options [file]
//
// A cancelled job ends it by SIGTERM's default: there is nothing to put right, and the back end sees the cut.

#include "printer/back_text.h"
#include "printer/fault_plan.h"
#include "printer/page_stream.h"
#include "printer/sheet_layout.h"

#include <QGuiApplication>

#include <cstdlib>
#include <cups/raster.h>
#include <fcntl.h>
#include <memory>
#include <unistd.h>

namespace {

using namespace halvern;

struct RasterCloser {
    void operator()(cups_raster_t* raster) const { cupsRasterClose(raster); }
};

int fail(const std::string& why)
{
    std::fprintf(stderr, "ERROR: %s\n", why.c_str());
    return 1;
}

class PageFilter {
public:
    PageFilter(cups_raster_t* raster, const JobOptions& options)
        : raster_(raster), out_(stdout), lines_(backLines(options))
    {
        writable_ = out_.options(options);
    }

    int run()
    {
        cups_page_header2_t header = {};
        while (writable_ && cupsRasterReadHeader2(raster_, &header) != 0) {
            if (!picture(header))
                return fail(error_);
        }
        if (frontIsOpen_)
            textBack();
        writable_ = writable_ && out_.end();
        if (pictures_ == 0)
            return fail("The job has no pages.");
        return writable_ ? 0 : fail("The pages could not be passed on to the printer.");
    }

private:
    bool picture(const cups_page_header2_t& header)
    {
        const auto sheet = layOut(header, error_);
        if (!sheet)
            return false;
        ++pictures_;
        const bool back = header.Duplex != 0 && frontIsOpen_;
        if (frontIsOpen_ && !back)
            textBack();
        page_ = {
            back ? page_.sheet : ++sheets_, back, false, sheet->width, sheet->height, header.HWResolution[0],
            header.HWResolution[1]};
        writable_ = out_.page(page_) && rows(header, *sheet);
        frontIsOpen_ = !back;
        if (header.Duplex == 0) {
            textBack();
            frontIsOpen_ = false;
        }
        return writable_ || error_.empty();
    }

    bool rows(const cups_page_header2_t& header, const SheetLayout& sheet)
    {
        std::vector<uint8_t> raster(header.cupsBytesPerLine);
        std::vector<uint8_t> row(size_t{sheet.width} * 3, 0xff);
        for (uint32_t y = 0; y < sheet.height; ++y) {
            const bool inside = y >= sheet.top && y - sheet.top < header.cupsHeight;
            if (inside) {
                if (cupsRasterReadPixels(raster_, raster.data(), header.cupsBytesPerLine) !=
                    header.cupsBytesPerLine) {
                    error_ = "The page data ends too early.";
                    return false;
                }
                placeRow(header, sheet, raster, row);
            } else if (y == 0 || y == sheet.top + header.cupsHeight) {
                std::fill(row.begin(), row.end(), uint8_t{0xff});
            }
            if (!out_.row(row))
                return false;
        }
        return true;
    }

    // The back of the sheet whose front was written last, if there is something to write on it.
    void textBack()
    {
        if (lines_.empty() || !writable_)
            return;
        PageHeader back = page_;
        back.back = back.text = true;
        const BackText text(lines_, back);
        std::vector<uint8_t> row(size_t{back.width} * 3);
        writable_ = out_.page(back);
        for (uint32_t y = 0; writable_ && y < back.height; ++y) {
            text.row(y, row);
            writable_ = out_.row(row);
        }
    }

    cups_raster_t* raster_;
    PageStreamWriter out_;
    std::vector<std::string> lines_;
    PageHeader page_;
    int sheets_ = 0;
    int pictures_ = 0;
    bool frontIsOpen_ = false;
    bool writable_ = true;
    std::string error_;
};

} // namespace

int main(int argc, char** argv)
{
    if (argc < 6 || argc > 7)
        return fail("usage: rastertohalvern job user title copies options [file]");
    const char* uri = std::getenv("DEVICE_URI");
    std::string why;
    const auto plan = parseFaultPlan(uri == nullptr ? "halvern:" : uri, false, why);
    if (plan && plan->filterFails)
        return fail("The pages could not be processed.");
    const int fd = argc == 7 ? ::open(argv[6], O_RDONLY | O_CLOEXEC) : STDIN_FILENO;
    const std::unique_ptr<cups_raster_t, RasterCloser> raster(fd < 0 ? nullptr
                                                                     : cupsRasterOpen(fd, CUPS_RASTER_READ));
    if (!raster)
        return fail("The page data cannot be read.");
    const JobOptions options = parseJobOptions(argv[5]);
    // Only text on the back needs fonts.
    std::unique_ptr<QGuiApplication> application;
    if (!backLines(options).empty()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application = std::make_unique<QGuiApplication>(argc, argv);
    }
    return PageFilter(raster.get(), options).run();
}
