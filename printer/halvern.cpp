// SPDX-License-Identifier: MIT
// The back end of the virtual printer: halvern job user title copies options [file]

#include "printer/cancellation.h"
#include "printer/virtual_printer.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <cups/backend.h>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace {

std::string environment(const char* name)
{
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

// A server of one's own says where; on the computer's own server it is the folder that is installed for it.
std::string folderOf(const char* variable, const char* installed)
{
    const std::string named = environment(variable);
    return named.empty() ? std::string(HALVERN_SPOOL_DIR "/") + installed : named;
}

// The queue's own list, or the one for all queues that have none.
std::string papersFile()
{
    const std::filesystem::path folder = folderOf("HALVERN_PAPERS_DIR", "papers");
    const std::string queue = environment("PRINTER");
    if (queue.find('/') != std::string::npos)
        return {};
    std::error_code none;
    for (const std::string& name : {queue, std::string("default")}) {
        const std::filesystem::path file = folder / (name + ".json");
        if (!name.empty() && std::filesystem::is_regular_file(file, none))
            return file;
    }
    const bool isInstalled = environment("HALVERN_PAPERS_DIR").empty();
    return isInstalled && std::filesystem::is_regular_file(HALVERN_STANDARD_PAPERS, none)
               ? HALVERN_STANDARD_PAPERS
               : "";
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 1) {
        std::puts("direct halvern://virtual/tessarin \"Halvern Tessarin\" \"Halvern Tessarin (virtual)\" "
                  "\"MFG:Halvern;MDL:Tessarin;\"");
        return CUPS_BACKEND_OK;
    }
    if (argc < 6 || argc > 7) {
        std::fputs("usage: halvern job user title copies options [file]\n", stderr);
        return CUPS_BACKEND_FAILED;
    }
    const int fd = argc == 7 ? ::open(argv[6], O_RDONLY | O_CLOEXEC) : STDIN_FILENO;
    halvern::cancellation::install();
    if (fd < 0)
        return halvern::giveUp(fd,
                               std::string("The print file cannot be opened: ") + std::strerror(errno) + ".",
                               CUPS_BACKEND_STOP);
    const bool commands = environment("CONTENT_TYPE") == "application/vnd.cups-command";
    std::string error;
    const auto plan = halvern::parseFaultPlan(environment("DEVICE_URI"), commands, error);
    if (!plan)
        return halvern::giveUp(fd, error, CUPS_BACKEND_STOP);
    const std::string jobs = folderOf("HALVERN_JOBS_DIR", "jobs");
    // The server would keep the pages from the folder's group, who set the queue up and want to look at them.
    if (environment("HALVERN_JOBS_DIR").empty())
        ::umask(0027);
    std::error_code none;
    if (jobs.front() != '/' || !std::filesystem::is_directory(jobs, none))
        return halvern::giveUp(fd,
                               "The folder for jobs, " + jobs +
                                   ", is not there: start the server with private-cups, or install the "
                                   "virtual printer.",
                               CUPS_BACKEND_STOP);
    return halvern::VirtualPrinter({argv[1], argv[2], argv[3], argv[4], commands, papersFile()}, *plan, jobs,
                                   fd)
        .run();
}
