// SPDX-License-Identifier: MIT
#include "bench/peers/meter.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>

#include <glib.h>
#include <sys/resource.h>

namespace {

using Clock = std::chrono::steady_clock;

Clock::time_point busySince;
double longestMilliseconds = 0;

double millisecondsSince(Clock::time_point begin)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
}

gint pollWithClock(GPollFD* descriptors, guint count, gint timeout)
{
    longestMilliseconds = std::max(longestMilliseconds, millisecondsSince(busySince));
    const gint ready = g_poll(descriptors, count, timeout);
    busySince = Clock::now();
    return ready;
}

std::int64_t now()
{
    using namespace std::chrono;
    return duration_cast<microseconds>(system_clock::now().time_since_epoch()).count();
}

double processorMilliseconds()
{
    rusage used = {};
    getrusage(RUSAGE_SELF, &used);
    const auto inMilliseconds = [](const timeval& time) {
        return double(time.tv_sec) * 1e3 + double(time.tv_usec) / 1e3;
    };
    return inMilliseconds(used.ru_utime) + inMilliseconds(used.ru_stime);
}

} // namespace

Meter::Meter() : start_(now())
{
    if (const char* given = std::getenv("HALVERN_BENCH_START"))
        start_ = std::strtoll(given, nullptr, 10);
    busySince = Clock::now();
    g_main_context_set_poll_func(nullptr, pollWithClock);
}

double Meter::since() const
{
    return double(now() - start_) / 1e3;
}

void Meter::notePainted()
{
    if (!isPainted())
        painted_ = since();
}

void Meter::startAgain()
{
    start_ = now();
    painted_ = -1;
    processor_ = processorMilliseconds();
    longestMilliseconds = 0;
    busySince = Clock::now();
}

void Meter::report() const
{
    rusage used = {};
    getrusage(RUSAGE_SELF, &used);
    std::printf("%.1f %.1f %.1f %.1f %.1f\n", painted_, since(),
                std::max(longestMilliseconds, millisecondsSince(busySince)),
                processorMilliseconds() - processor_, double(used.ru_maxrss) / 1024);
    std::fflush(stdout);
}
