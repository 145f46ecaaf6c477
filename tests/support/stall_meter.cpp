// SPDX-License-Identifier: MIT
#include "tests/support/stall_meter.h"

#include <QCoreApplication>
#include <QMetaObject>

#include <chrono>
#include <fstream>

#include <unistd.h>

namespace halvern {

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr auto kEvery = 5ms;

struct Busy {
    double computed = 0.0; // nanoseconds
    double waited = 0.0;   // for a processor

    double milliseconds() const { return (computed + waited) / 1e6; }
};

// The process's first thread.
Busy busy()
{
    static const std::string path = "/proc/self/task/" + std::to_string(getpid()) + "/schedstat";
    Busy now;
    std::ifstream(path) >> now.computed >> now.waited;
    return now;
}

double milliseconds(Clock::duration time)
{
    return std::chrono::duration<double, std::milli>(time).count();
}

double runningMilliseconds()
{
    return milliseconds(Clock::now().time_since_epoch()) - busy().waited / 1e6;
}

} // namespace

Stopwatch::Stopwatch() : began_(runningMilliseconds()) {}

double Stopwatch::milliseconds() const
{
    return runningMilliseconds() - began_;
}

struct StallMeter::State {
    std::atomic<bool> isAsked = false;
    std::atomic<double> longest = 0.0;
};

StallMeter::StallMeter() : state_(std::make_shared<State>()), thread_([this] { watch(); }) {}

StallMeter::~StallMeter()
{
    stop_ = true;
    thread_.join();
}

double StallMeter::longest() const
{
    return state_->longest;
}

void StallMeter::restart()
{
    state_->longest = 0.0;
}

void StallMeter::watch()
{
    for (; !stop_; std::this_thread::sleep_for(kEvery)) {
        if (state_->isAsked.exchange(true))
            continue;
        const double before = busy().milliseconds();
        const Clock::time_point asked = Clock::now();
        QMetaObject::invokeMethod(
            qApp,
            [state = state_, before, asked] {
                const double net = milliseconds(Clock::now() - asked) - (busy().milliseconds() - before);
                state->longest = std::max(state->longest.load(), net);
                state->isAsked = false;
            },
            Qt::QueuedConnection);
    }
}

} // namespace halvern
