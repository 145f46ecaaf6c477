#include "printer/virtual_printer.h"

#include "printer/cancellation.h"
#include "printer/png_page.h"

#include <cmath>
#include <cups/backend.h>

namespace halvern {

namespace {

// Parts of a page after which progress is reported and a slow printer pauses.
constexpr int kBands = 10;

void tell(const char* kind, const std::string& text)
{
    std::string line = text;
    for (char& c : line) {
        if (c == '\n')
            c = ' ';
    }
    std::fprintf(stderr, "%s: %s\n", kind, line.c_str());
}

std::string pageName(const PageHeader& page)
{
    return "page " + std::to_string(page.sheet) + (page.back ? " (back)" : "");
}

} // namespace

VirtualPrinter::VirtualPrinter(Job job, FaultPlan plan, std::string jobsDir)
    : job_(std::move(job)), plan_(std::move(plan)), folder_(jobsDir, job_.id)
{
}

int VirtualPrinter::run(int fd)
{
    if (!folder_.error().empty())
        return unusable(folder_.error());
    folder_.log("job " + job_.id + " from " + job_.user + ": \"" + job_.title + "\", copies " + job_.copies);
    // What an earlier job complained about has been seen to.
    tell("STATE", "-offline-report," + plan_.reason);
    if (const int status = waitForPrinter(); status != CUPS_BACKEND_OK)
        return status;
    if (plan_.reject) {
        tell("ERROR", "The printer refuses this job.");
        folder_.log("refused");
        return CUPS_BACKEND_CANCEL;
    }
    if (plan_.hold) {
        tell("ERROR", "The printer asks to hold this job until someone releases it.");
        folder_.log("held");
        return CUPS_BACKEND_HOLD;
    }
    PageStreamReader in(fd);
    return receive(in);
}

int VirtualPrinter::waitForPrinter()
{
    if (plan_.offlineSeconds <= 0.0)
        return CUPS_BACKEND_OK;
    tell("STATE", "+offline-report");
    tell("INFO", "The printer is offline.");
    folder_.log("offline");
    const bool forever = std::isinf(plan_.offlineSeconds);
    const auto time =
        std::chrono::milliseconds(std::llround(forever ? 1000.0 : plan_.offlineSeconds * 1000.0));
    do {
        if (!cancellation::pause(time))
            return cancelled();
    } while (forever);
    tell("STATE", "-offline-report");
    tell("INFO", "The printer is online again.");
    folder_.log("online");
    return CUPS_BACKEND_OK;
}

int VirtualPrinter::receive(PageStreamReader& in)
{
    while (auto item = in.next()) {
        int status = CUPS_BACKEND_OK;
        if (auto* option = std::get_if<JobOption>(&*item))
            options_.push_back(std::move(*option));
        else if (const auto* command = std::get_if<StreamCommand>(&*item))
            status = keepCommand(command->file);
        else if (const auto* page = std::get_if<PageHeader>(&*item))
            status = printPage(in, *page);
        else
            return finish();
        if (status != CUPS_BACKEND_OK)
            return status;
    }
    return interrupted(in);
}

int VirtualPrinter::printPage(PageStreamReader& in, const PageHeader& page)
{
    if (pages_ == 0 && !folder_.writeOptions(options_))
        return unusable(folder_.error());
    const bool stop = plan_.stopAfter && pages_ >= *plan_.stopAfter;
    const bool fail = plan_.failAfter && pages_ >= *plan_.failAfter;
    PngPage png(folder_.pageFile(page), page);
    std::vector<uint8_t> row(size_t{page.width} * 3);
    tell("INFO", "Printing " + pageName(page) + ".");
    int band = 0;
    for (uint32_t y = 0; y < page.height; ++y) {
        if (!in.row(row))
            return interrupted(in);
        if (!png.row(row))
            return unusable("A page cannot be written: " + png.error() + ".");
        if (int64_t{y + 1} * kBands < int64_t{band + 1} * page.height)
            continue;
        if (!takeTime(++band, kBands))
            return cancelled();
        if ((stop || fail) && band == kBands / 2)
            return breakDown(stop);
    }
    if (!png.finish())
        return unusable("A page cannot be written: " + png.error() + ".");
    if (!page.back)
        ++pages_;
    if (!page.text)
        std::fprintf(stderr, "PAGE: %d 1\n", ++pictures_);
    folder_.log(pageName(page) + ", " + std::to_string(page.width) + "x" + std::to_string(page.height) +
                " pixels, " + std::to_string(page.xDpi) + " dpi");
    return CUPS_BACKEND_OK;
}

bool VirtualPrinter::takeTime(int part, int parts)
{
    std::fprintf(stderr, "ATTR: job-media-progress=%d\n", part * 100 / parts);
    const double milliseconds = plan_.slowSeconds * 1000.0 / parts;
    return cancellation::pause(std::chrono::milliseconds(std::llround(milliseconds)));
}

int VirtualPrinter::keepCommand(const std::string& file)
{
    if (!folder_.writeOptions(options_) || !folder_.writeCommand(file))
        return unusable(folder_.error());
    folder_.log("command file, " + std::to_string(file.size()) + " bytes");
    if (!cancellation::pause(std::chrono::milliseconds(std::llround(plan_.slowSeconds * 1000.0))))
        return cancelled();
    if (plan_.stopAfter == 0 || plan_.failAfter == 0)
        return breakDown(plan_.stopAfter == 0);
    return CUPS_BACKEND_OK;
}

int VirtualPrinter::finish()
{
    if (pages_ == 0 && !job_.commands && !folder_.writeOptions(options_))
        return unusable(folder_.error());
    folder_.log("done");
    return CUPS_BACKEND_OK;
}

int VirtualPrinter::breakDown(bool stop)
{
    tell("STATE", "+" + plan_.reason);
    tell("ERROR", stop ? "The printer has stopped; see to it and start the queue again."
                       : "The printer has failed to print this job.");
    folder_.log(std::string(stop ? "stopped" : "failed") + " after " + std::to_string(pages_) + " pages, " +
                plan_.reason);
    return stop ? CUPS_BACKEND_STOP : CUPS_BACKEND_FAILED;
}

int VirtualPrinter::cancelled()
{
    tell("STATE", "-offline-report");
    folder_.log("cancelled");
    return CUPS_BACKEND_OK;
}

int VirtualPrinter::interrupted(PageStreamReader& in)
{
    if (in.error().empty())
        return cancelled();
    // The filter's own exit status tells CUPS; a failure of the back end as well would stop the queue.
    tell("ERROR", "The job is incomplete: " + in.error() + ".");
    folder_.log("incomplete: " + in.error());
    return CUPS_BACKEND_OK;
}

int VirtualPrinter::unusable(const std::string& why)
{
    tell("ERROR", why);
    return CUPS_BACKEND_STOP;
}

} // namespace halvern
