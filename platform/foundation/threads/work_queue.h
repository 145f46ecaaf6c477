// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <functional>
#include <memory>

namespace HALVERN_EXPORT halvern {

/// Work for the main thread, run from its event loop in the order of submission. async() may be called from
/// any thread and never blocks. Work that is still queued when the event loop has ended for good never runs;
/// what it captured stays.
class MainQueue {
public:
    void async(std::function<void()> work) const;

    /// Runs `work` once after `milliseconds`.
    void after(int milliseconds, std::function<void()> work) const;
};

const MainQueue& mainQueue();

/// An unlabelled serial queue: its work runs in order, on a thread of its own that is there from the first
/// work until the queue is let go of and its work is done. So a queue that is kept is a worker, and what only
/// its work touches, a connection for example, stays on one thread. Letting go of the queue does not lose
/// what was submitted; only when the system has no thread left is it lost, with a log line. The thread is
/// never joined, so one that is stuck in a system call holds up nobody's exit. Any thread.
class WorkQueue {
public:
    WorkQueue();

    /// False if the work was lost.
    bool async(std::function<void()> work) const;

private:
    struct State;
    struct Handle;
    std::shared_ptr<Handle> handle_;
};

/// Waits until no queue has work, `milliseconds` at most; false if one still has. For the end of a program
/// whose windows are closed, so that waits which have seen their panel go can tidy up after themselves.
bool waitForWorkQueues(int milliseconds);

} // namespace halvern
