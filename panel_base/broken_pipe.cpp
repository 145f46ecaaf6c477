// SPDX-License-Identifier: MIT
#include "panel_base/broken_pipe.h"

#include <time.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstddef>

namespace halvern {

namespace {

static_assert(std::atomic<long>::is_always_lock_free, "a signal handler uses it");

std::atomic<bool> isOnTerminal = false;
// Standard error is a broken pipe itself: each line there would call the handler anew, without end.
std::atomic<bool> isLogGone = false;
std::atomic<long> nextLineAt = 0; // seconds of the monotonic clock

// A server that goes away breaks a pipe with each question, and a terminal has a reader.
bool isTooSoon()
{
    timespec now = {};
    if (!isOnTerminal || clock_gettime(CLOCK_MONOTONIC, &now) != 0)
        return false;
    long next = nextLineAt;
    return now.tv_sec < next || !nextLineAt.compare_exchange_strong(next, now.tv_sec + 1);
}

// Only async-signal-safe calls here, and the interrupted code's errno stays.
extern "C" void brokenPipeHandler(int number)
{
    const int error = errno;
    if (isLogGone || isTooSoon()) {
        errno = error;
        return;
    }
    char line[] = "caught a signal ..........\n";
    char* at = line + sizeof("caught a signal ") - 1;
    char digits[10];
    std::size_t count = 0;
    do {
        digits[count++] = char('0' + number % 10);
        number /= 10;
    } while (number > 0);
    while (count > 0)
        *at++ = digits[--count];
    *at++ = '\n';
    if (write(STDERR_FILENO, line, std::size_t(at - line)) < 0)
        isLogGone = errno == EPIPE;
    errno = error;
}

} // namespace

bool installBrokenPipeHandler()
{
    isOnTerminal = isatty(STDERR_FILENO) != 0;
    isLogGone = false;
    return std::signal(SIGPIPE, brokenPipeHandler) != SIG_ERR;
}

} // namespace halvern
