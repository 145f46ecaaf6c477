// SPDX-License-Identifier: MIT
#include "platform/foundation/threads/run_loop_timer.h"

#include "platform/foundation/threads/work_queue.h"

#include <QPointer>
#include <QTimer>

#include <atomic>
#include <utility>

namespace halvern {

struct RunLoopTimer::State {
    std::function<void()> work;
    std::atomic<bool> valid = true;

    // Main thread only.
    QPointer<QTimer> timer;

    void run()
    {
        if (valid)
            work();
    }
};

RunLoopTimer::RunLoopTimer(std::shared_ptr<State> state) : state_(std::move(state)) {}

std::shared_ptr<RunLoopTimer> RunLoopTimer::scheduled(int milliseconds, std::function<void()> work)
{
    auto state = std::make_shared<State>();
    state->work = std::move(work);
    // Owned by the event loop's side: it is deleted on the main thread, whoever invalidates it.
    QTimer* timer = std::make_unique<QTimer>().release();
    state->timer = timer;
    QObject::connect(timer, &QTimer::timeout, timer, [state] { state->run(); });
    timer->start(milliseconds);
    return std::shared_ptr<RunLoopTimer>(new RunLoopTimer(std::move(state)));
}

RunLoopTimer::~RunLoopTimer()
{
    invalidate();
}

void RunLoopTimer::fire()
{
    state_->run();
}

void RunLoopTimer::invalidate()
{
    if (!state_->valid.exchange(false))
        return;
    mainQueue().async([state = state_] {
        if (state->timer)
            state->timer->deleteLater();
    });
}

bool RunLoopTimer::isValid() const
{
    return state_->valid;
}

} // namespace halvern
