// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <functional>
#include <memory>

namespace HALVERN_EXPORT halvern {

/// A repeating timer of the main thread's event loop, behind a handle that any thread may let go of. The
/// timer runs until it is invalidated or its last handle goes.
class RunLoopTimer {
public:
    /// Starts a timer that calls `work` every `milliseconds`. Main thread only.
    static std::shared_ptr<RunLoopTimer> scheduled(int milliseconds, std::function<void()> work);

    ~RunLoopTimer();
    RunLoopTimer(const RunLoopTimer&) = delete;
    RunLoopTimer& operator=(const RunLoopTimer&) = delete;

    /// Calls the work now, unless invalidated; the interval goes on as it is. Main thread only.
    void fire();

    /// Stops the timer for good; never blocks. Work that has begun on the main thread still ends. Any thread.
    void invalidate();

    bool isValid() const;

private:
    struct State;
    explicit RunLoopTimer(std::shared_ptr<State> state);

    std::shared_ptr<State> state_;
};

} // namespace halvern
