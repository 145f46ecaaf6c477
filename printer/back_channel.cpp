// SPDX-License-Identifier: MIT
#include "printer/back_channel.h"

#include "printer/cancellation.h"

#include <cups/backend.h>
#include <cups/cups.h>
#include <cups/sidechannel.h>

#include <charconv>
#include <sys/stat.h>

namespace halvern::back_channel {

namespace {

// The descriptor that CUPS gives to filters and back ends for it.
constexpr int kDescriptor = 3;
constexpr std::string_view kTag = "PAPERS ";
constexpr size_t kMaxList = size_t{32} << 20;

// Without CUPS, when somebody runs the program by hand, the descriptor may be any file.
bool exists()
{
    struct stat what = {};
    return ::fstat(kDescriptor, &what) == 0 && S_ISFIFO(what.st_mode);
}

// -1 without an answer to come, else whether the answer is whole.
int isWhole(const std::string& received, size_t& start)
{
    const size_t end = received.find('\n');
    if (end == std::string::npos)
        return received.size() > kTag.size() + 20 ? -1 : 0;
    size_t length = 0;
    const char* digits = received.data() + kTag.size();
    const char* last = received.data() + end;
    if (!received.starts_with(kTag) || std::from_chars(digits, last, length).ptr != last || length > kMaxList)
        return -1;
    start = end + 1;
    return received.size() - start >= length ? 1 : 0;
}

} // namespace

bool sendPapers(const std::string& list)
{
    constexpr int kPatience = 5;
    const std::string all = std::string(kTag) + std::to_string(list.size()) + '\n' + list;
    int idle = 0;
    for (size_t sent = 0; sent < all.size();) {
        if (!exists() || idle == kPatience || !cancellation::pause(std::chrono::milliseconds(0)))
            return false;
        const ssize_t now = cupsBackChannelWrite(all.data() + sent, all.size() - sent, 1.0);
        idle = now > 0 ? 0 : idle + 1;
        sent += now > 0 ? size_t(now) : 0;
    }
    return true;
}

std::optional<std::string> receivePapers()
{
    std::string received;
    char buffer[4096];
    while (exists()) {
        // -1 without data for a second: the printer is slow, or off. 0 once the back end has ended.
        const ssize_t now = cupsBackChannelRead(buffer, sizeof buffer, 1.0);
        if (now == 0)
            break;
        received.append(buffer, now > 0 ? size_t(now) : 0);
        size_t start = 0;
        const int whole = isWhole(received, start);
        if (whole < 0)
            break;
        if (whole > 0)
            return received.substr(start);
    }
    return std::nullopt;
}

} // namespace halvern::back_channel
