// SPDX-License-Identifier: MIT
#pragma once

#include "printer/job_options.h"

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace halvern {

struct PageHeader;

/// What the printer leaves of one job: JOBS/ID/ with page-N.png, page-N-back.png, options.txt, command and
/// log.txt. A job that is printed again replaces its files and goes on with its log.
class JobFolder {
public:
    /// Makes the folder below `jobs`. `id` must be a CUPS job number: anything else, or a folder that cannot
    /// be made, leaves the object unusable, and error() says why.
    JobFolder(const std::filesystem::path& jobs, std::string_view id);

    const std::string& error() const { return error_; }

    std::filesystem::path pageFile(const PageHeader& page) const;

    bool writeOptions(const JobOptions& options);
    bool writeCommand(const std::string& file);

    /// Adds a line with the time to log.txt.
    void log(std::string_view text);

private:
    void removeOldFiles();
    bool write(const char* name, const std::string& content);

    std::filesystem::path folder_;
    std::ofstream log_;
    std::string error_;
};

} // namespace halvern
