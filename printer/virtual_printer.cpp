// SPDX-License-Identifier: MIT
#include "printer/virtual_printer.h"

#include "printer/back_channel.h"
#include "printer/cancellation.h"
#include "printer/png_page.h"

#include <algorithm>
#include <cmath>
#include <cups/backend.h>
#include <fstream>
#include <iterator>
#include <unistd.h>

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

bool hasLine(std::string_view text, std::string_view line)
{
    while (!text.empty()) {
        const size_t end = std::min(text.find('\n'), text.size());
        if (text.substr(0, end) == line)
            return true;
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return false;
}

std::string pageName(const PageHeader& page)
{
    return "page " + std::to_string(page.sheet) + (page.back ? " (back)" : "");
}

} // namespace

int giveUp(int fd, const std::string& why, int status)
{
    std::vector<char> buffer(size_t{64} * 1024);
    while (fd >= 0 && cancellation::waitReadable(fd) && ::read(fd, buffer.data(), buffer.size()) > 0) {
    }
    tell("ERROR", why);
    return status;
}

VirtualPrinter::VirtualPrinter(Job job, FaultPlan plan, const std::string& jobsDir, int fd)
    : job_(std::move(job)), plan_(std::move(plan)), folder_(jobsDir, job_.id), fd_(fd), in_(fd)
{
}

int VirtualPrinter::run()
{
    if (!folder_.error().empty())
        return unusable(folder_.error());
    folder_.log("job " + job_.id + " from " + job_.user + ": \"" + job_.title + "\", copies " + job_.copies);
    // What an earlier job complained about has been seen to.
    tell("STATE", "-offline-report," + plan_.reason);
    if (plan_.offlineSeconds > 0.0 && !waitForPrinter())
        return cancelled();
    if (plan_.reject) {
        folder_.log("refused");
        return giveUp(fd_, "The printer refuses this job.", CUPS_BACKEND_CANCEL);
    }
    if (plan_.hold) {
        folder_.log("held");
        return giveUp(fd_, "The printer asks to hold this job until someone releases it.", CUPS_BACKEND_HOLD);
    }
    return receive();
}

// False if the job was cancelled meanwhile.
bool VirtualPrinter::waitForPrinter()
{
    constexpr double kMessageSeconds = 1.0;
    tell("STATE", "+offline-report");
    folder_.log("offline");
    for (double left = plan_.offlineSeconds; left > 0.0; left -= kMessageSeconds) {
        // Again and again: the filters have messages, too.
        tell("INFO", "The printer is offline.");
        const double step = std::min(left, kMessageSeconds);
        if (!cancellation::pause(std::chrono::milliseconds(std::llround(step * 1000.0))))
            return false;
    }
    tell("STATE", "-offline-report");
    tell("INFO", "The printer is online again.");
    folder_.log("online");
    return true;
}

int VirtualPrinter::receive()
{
    while (auto item = in_.next()) {
        int status = CUPS_BACKEND_OK;
        if (auto* option = std::get_if<JobOption>(&*item))
            options_.push_back(std::move(*option));
        else if (const auto* command = std::get_if<StreamCommand>(&*item))
            status = keepCommand(command->file);
        else if (const auto* page = std::get_if<PageHeader>(&*item))
            status = printPage(*page);
        else if (!startNextDocument())
            return in_.error().empty() && !cancellation::requested() ? finish() : interrupted();
        if (status != CUPS_BACKEND_OK)
            return status;
    }
    return interrupted();
}

// Each document comes with the job's options, and its sheets count from 1.
bool VirtualPrinter::startNextDocument()
{
    if (!in_.nextStream())
        return false;
    options_.clear();
    sheetsBefore_ = lastSheet_;
    return true;
}

int VirtualPrinter::printPage(PageHeader page)
{
    page.sheet += sheetsBefore_;
    lastSheet_ = page.sheet;
    if (pages_ == 0 && !folder_.writeOptions(options_))
        return unusable(folder_.error());
    const bool stop = plan_.stopAfter && pages_ >= *plan_.stopAfter;
    const bool fail = plan_.failAfter && pages_ >= *plan_.failAfter;
    PngPage png(folder_.pageFile(page), page);
    std::vector<uint8_t> row(size_t{page.width} * 3);
    tell("INFO", "Printing " + pageName(page) + ".");
    int band = 0;
    for (uint32_t y = 0; y < page.height; ++y) {
        if (!in_.row(row))
            return interrupted();
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
    if (hasLine(file, "AutoConfigure"))
        reportPapers();
    return CUPS_BACKEND_OK;
}

void VirtualPrinter::reportPapers()
{
    std::ifstream in(job_.papersFile, std::ios::binary);
    const std::string list{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    if (list.empty())
        folder_.log("no papers to report: " + (job_.papersFile.empty() ? "no list" : job_.papersFile));
    else if (back_channel::sendPapers(list))
        folder_.log("reported the papers of " + job_.papersFile);
    else
        folder_.log("nobody took the report");
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
    folder_.log(std::string(stop ? "stopped" : "failed") + " after " + std::to_string(pages_) + " pages, " +
                plan_.reason);
    return stop ? giveUp(fd_, "The printer has stopped; see to it and start the queue again.",
                         CUPS_BACKEND_STOP)
                : giveUp(fd_, "The printer has failed to print this job.", CUPS_BACKEND_FAILED);
}

int VirtualPrinter::cancelled()
{
    tell("STATE", "-offline-report");
    folder_.log("cancelled");
    return CUPS_BACKEND_OK;
}

int VirtualPrinter::interrupted()
{
    if (in_.error().empty())
        return cancelled();
    // The filter's own exit status tells CUPS; a failure of the back end as well would stop the queue.
    tell("ERROR", "The job is incomplete: " + in_.error() + ".");
    folder_.log("incomplete: " + in_.error());
    return CUPS_BACKEND_OK;
}

int VirtualPrinter::unusable(const std::string& why)
{
    return giveUp(fd_, why, CUPS_BACKEND_STOP);
}

} // namespace halvern
