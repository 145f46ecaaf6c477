// SPDX-License-Identifier: MIT
// The filter for command files: commandtohalvern job user title copies options [file]

#include "printer/back_channel.h"
#include "printer/fault_plan.h"
#include "printer/notify/after_job.h"
#include "printer/page_stream.h"
#include "printer/papers_report.h"

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <sstream>

namespace {

using namespace halvern;

constexpr char kHead[] = "#CUPS-COMMAND";
constexpr size_t kMaxCommandFile = size_t{64} * 1024;

int fail(const std::string& why)
{
    std::fprintf(stderr, "ERROR: %s\n", why.c_str());
    return 1;
}

std::optional<std::string> readAll(std::FILE* in)
{
    std::string text(kMaxCommandFile + 1, '\0');
    text.resize(std::fread(text.data(), 1, text.size(), in));
    return std::ferror(in) != 0 || text.size() > kMaxCommandFile ? std::nullopt : std::optional(text);
}

// The lines after the first, without blanks lines and comments.
std::vector<std::string> commands(const std::string& file)
{
    std::vector<std::string> found;
    std::istringstream lines(file);
    std::string line;
    std::getline(lines, line);
    while (std::getline(lines, line)) {
        if (!line.empty() && line.front() != '#')
            found.push_back(line);
    }
    return found;
}

// What the printer answers goes into the queue's PPD, and from there to the print dialogs.
int report(const std::string& list, bool garbled, int job, const char* uri)
{
    const std::chrono::duration<double> now = std::chrono::system_clock::now().time_since_epoch();
    const ReportResult result = papersReport(QByteArray::fromStdString(list), now.count(), garbled);
    if (result.lines.isEmpty())
        return fail("The printer's papers cannot be reported: " + result.failure.toStdString());
    std::fwrite(result.lines.constData(), 1, size_t(result.lines.size()), stderr);
    if (uri != nullptr)
        notifyAfterJob(job, uri);
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 6 || argc > 7)
        return fail("usage: commandtohalvern job user title copies options [file]");
    const char* uri = std::getenv("DEVICE_URI");
    std::string why;
    const auto plan = parseFaultPlan(uri == nullptr ? "halvern:" : uri, true, why);
    if (plan && plan->filterFails)
        return fail("The command file could not be processed.");
    std::FILE* in = argc == 7 ? std::fopen(argv[6], "rb") : stdin;
    const auto file = in == nullptr ? std::nullopt : readAll(in);
    if (!file)
        return fail("The command file cannot be read, or has more than 64 kB.");
    if (!file->starts_with(kHead))
        return fail("This is not a command file: its first line must be #CUPS-COMMAND.");
    for (const std::string& command : commands(*file))
        std::fprintf(stderr, "DEBUG: command %s\n", command.c_str());
    PageStreamWriter out(stdout);
    if (!out.options(parseJobOptions(argv[5])) || !out.command(*file) || !out.end())
        return fail("The command file could not be passed on to the printer.");
    std::fclose(stdout);
    const auto papers = back_channel::receivePapers();
    return papers ? report(*papers, plan && plan->garbled, std::atoi(argv[1]), uri) : 0;
}
