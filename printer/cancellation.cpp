// SPDX-License-Identifier: MIT
#include "printer/cancellation.h"

#include <cerrno>
#include <csignal>
#include <poll.h>

namespace halvern::cancellation {

namespace {

volatile std::sig_atomic_t g_requested = 0;
sigset_t g_waitMask;

void onTerminate(int)
{
    g_requested = 1;
}

timespec toTimespec(std::chrono::nanoseconds time)
{
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(time);
    return {static_cast<time_t>(seconds.count()), static_cast<long>((time - seconds).count())};
}

} // namespace

void install()
{
    struct sigaction action = {};
    action.sa_handler = onTerminate;
    sigemptyset(&action.sa_mask);
    sigaction(SIGTERM, &action, nullptr);
    std::signal(SIGPIPE, SIG_IGN);

    sigset_t block;
    sigemptyset(&block);
    sigaddset(&block, SIGTERM);
    sigprocmask(SIG_BLOCK, &block, &g_waitMask);
    sigdelset(&g_waitMask, SIGTERM);
}

bool requested()
{
    return g_requested != 0;
}

bool waitReadable(int fd)
{
    pollfd wait = {fd, POLLIN, 0};
    while (!requested()) {
        const int ready = ppoll(&wait, 1, nullptr, &g_waitMask);
        if (ready > 0 || (ready < 0 && errno != EINTR))
            return !requested();
    }
    return false;
}

bool pause(std::chrono::milliseconds time)
{
    const auto end = std::chrono::steady_clock::now() + time;
    while (!requested()) {
        const auto left = end - std::chrono::steady_clock::now();
        if (left.count() <= 0)
            return true;
        const timespec rest = toTimespec(left);
        ppoll(nullptr, 0, &rest, &g_waitMask);
    }
    return false;
}

} // namespace halvern::cancellation
