#include "platform/foundation/work_queue.h"

#include <QCoreApplication>
#include <QTimer>

#include <deque>
#include <mutex>
#include <thread>
#include <utility>

namespace halvern {

void MainQueue::async(std::function<void()> work) const
{
    if (QCoreApplication* app = QCoreApplication::instance())
        QMetaObject::invokeMethod(app, std::move(work), Qt::QueuedConnection);
}

void MainQueue::after(int milliseconds, std::function<void()> work) const
{
    async([milliseconds, work = std::move(work)]() mutable {
        QTimer::singleShot(milliseconds, QCoreApplication::instance(), std::move(work));
    });
}

const MainQueue& mainQueue()
{
    static const MainQueue queue;
    return queue;
}

struct WorkQueue::State {
    std::mutex mutex;
    std::deque<std::function<void()>> work;
    bool running = false;

    static void run(const std::shared_ptr<State>& state);
};

void WorkQueue::State::run(const std::shared_ptr<State>& state)
{
    for (;;) {
        std::function<void()> next;
        {
            const std::scoped_lock lock(state->mutex);
            if (state->work.empty()) {
                state->running = false;
                return;
            }
            next = std::move(state->work.front());
            state->work.pop_front();
        }
        next();
    }
}

WorkQueue::WorkQueue() : state_(std::make_shared<State>()) {}

void WorkQueue::async(std::function<void()> work) const
{
    const std::scoped_lock lock(state_->mutex);
    state_->work.push_back(std::move(work));
    if (std::exchange(state_->running, true))
        return;
    std::thread([state = state_] { State::run(state); }).detach();
}

} // namespace halvern
