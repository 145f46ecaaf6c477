// SPDX-License-Identifier: MIT
#include "printer/job_folder.h"

#include "printer/page_stream.h"

#include <algorithm>
#include <cctype>
#include <ctime>

namespace halvern {

namespace fs = std::filesystem;

namespace {

bool isJobId(std::string_view id)
{
    return !id.empty() && id.size() <= 10 &&
           std::all_of(id.begin(), id.end(), [](unsigned char c) { return std::isdigit(c) != 0; });
}

} // namespace

JobFolder::JobFolder(const fs::path& jobs, std::string_view id)
{
    if (!isJobId(id)) {
        error_ = "The job number \"" + std::string(id) + "\" is not a number.";
        return;
    }
    folder_ = jobs / id;
    std::error_code failure;
    fs::create_directory(folder_, failure);
    // A link in place of the folder would lead the job's files somewhere else.
    if (failure || fs::symlink_status(folder_, failure).type() != fs::file_type::directory) {
        error_ = "The folder " + folder_.string() + " cannot be made: check that the server may write there.";
        return;
    }
    removeOldFiles();
    log_.open(folder_ / "log.txt", std::ios::app);
}

void JobFolder::removeOldFiles()
{
    std::error_code ignored;
    for (const auto& entry : fs::directory_iterator(folder_, ignored)) {
        const std::string name = entry.path().filename();
        if (name != "log.txt")
            fs::remove(entry.path(), ignored);
    }
}

fs::path JobFolder::pageFile(const PageHeader& page) const
{
    return folder_ / ("page-" + std::to_string(page.sheet) + (page.back ? "-back.png" : ".png"));
}

bool JobFolder::writeOptions(const JobOptions& options)
{
    return write("options.txt", optionsFile(options));
}

bool JobFolder::writeCommand(const std::string& file)
{
    return write("command", file);
}

// Who waits for the file sees the whole of it or nothing.
bool JobFolder::write(const char* name, const std::string& content)
{
    const fs::path whole = folder_ / name;
    const fs::path part = whole.string() + ".part";
    std::ofstream file(part, std::ios::binary);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    file.close();
    std::error_code failure;
    if (!file.fail())
        fs::rename(part, whole, failure);
    if (file.fail() || failure)
        error_ = "The file " + whole.string() + " cannot be written.";
    return !file.fail() && !failure;
}

void JobFolder::log(std::string_view text)
{
    const std::time_t now = std::time(nullptr);
    std::tm parts = {};
    gmtime_r(&now, &parts);
    char stamp[32];
    std::strftime(stamp, sizeof stamp, "%Y-%m-%dT%H:%M:%SZ", &parts);
    std::string line(text);
    std::replace(line.begin(), line.end(), '\n', ' ');
    log_ << stamp << "  " << line << std::endl;
}

} // namespace halvern
