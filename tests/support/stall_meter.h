// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <memory>
#include <thread>

namespace halvern {

/// Milliseconds since it was made, without those that the process's first thread waited for a processor. That
/// thread only.
class Stopwatch {
public:
    Stopwatch();
    double milliseconds() const;

private:
    double began_;
};

/// How long the main loop was held up by something else than its own work: the longest time from a question
/// of another thread's to the main thread's answer, without the time that the main thread computed or waited
/// for a processor, so that a busy machine does not count. Made on the main thread, and no longer than the
/// application.
class StallMeter {
public:
    StallMeter();
    ~StallMeter();
    StallMeter(const StallMeter&) = delete;
    StallMeter& operator=(const StallMeter&) = delete;

    /// Milliseconds, since the beginning or restart().
    double longest() const;
    void restart();

private:
    struct State;
    void watch();

    std::shared_ptr<State> state_;
    std::atomic<bool> stop_ = false;
    std::thread thread_;
};

} // namespace halvern
