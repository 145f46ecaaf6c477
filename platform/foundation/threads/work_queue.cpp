// SPDX-License-Identifier: MIT
#include "platform/foundation/threads/work_queue.h"

#include "platform/foundation/log.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace halvern {

namespace {

struct BusyThreads {
    std::mutex mutex;
    std::condition_variable changed;
    int count = 0;

    void add(int difference)
    {
        const std::scoped_lock lock(mutex);
        count += difference;
        changed.notify_all();
    }
};

BusyThreads& busyThreads()
{
    // Never destroyed: a thread that is stuck may come back after main() has returned.
    static BusyThreads* const threads = std::make_unique<BusyThreads>().release();
    return *threads;
}

// The work itself is kept apart from Qt's events, which only say that there is some: an application object
// that goes deletes its pending events under a lock, and the last reference to a panel must not drop there.
struct MainWork {
    std::mutex mutex;
    std::deque<std::function<void()>> pending;
};

MainWork& mainWork()
{
    // Never destroyed, like what it works for.
    static MainWork* const work = std::make_unique<MainWork>().release();
    return *work;
}

void runNextMainWork()
{
    std::function<void()> next;
    {
        const std::scoped_lock lock(mainWork().mutex);
        if (mainWork().pending.empty())
            return;
        next = std::move(mainWork().pending.front());
        mainWork().pending.pop_front();
    }
    next();
}

// Where the main thread's work is posted to. It lives for ever: a worker that nobody joins may post while the
// application object is going.
class MainTarget : public QObject {
protected:
    // Nothing is taken out of the event itself: the thread sanitizer does not see the locks that it came
    // under.
    void customEvent(QEvent*) override { runNextMainWork(); }
};

QObject* makeMainTarget()
{
    QObject* target = std::make_unique<MainTarget>().release();
    if (const QCoreApplication* app = QCoreApplication::instance())
        target->moveToThread(app->thread());
    return target;
}

QObject* mainTarget()
{
    static QObject* const target = makeMainTarget();
    return target;
}

void announceMainWork()
{
    QCoreApplication::postEvent(mainTarget(), std::make_unique<QEvent>(QEvent::User).release());
}

// What an application object before this one left has lost its announcement.
void settleMainTarget()
{
    mainTarget();
    size_t left = 0;
    {
        const std::scoped_lock lock(mainWork().mutex);
        left = mainWork().pending.size();
    }
    while (left-- > 0)
        announceMainWork();
}

Q_COREAPP_STARTUP_FUNCTION(settleMainTarget)

} // namespace

void MainQueue::async(std::function<void()> work) const
{
    {
        const std::scoped_lock lock(mainWork().mutex);
        mainWork().pending.push_back(std::move(work));
    }
    announceMainWork();
}

void MainQueue::after(int milliseconds, std::function<void()> work) const
{
    async([milliseconds, work = std::move(work)]() mutable {
        QTimer::singleShot(milliseconds, mainTarget(), std::move(work));
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

bool WorkQueue::async(std::function<void()> work) const
{
    std::deque<std::function<void()>> lost; // let go of after the lock: it may hold a last reference
    const std::scoped_lock lock(state_->mutex);
    state_->work.push_back(std::move(work));
    if (std::exchange(state_->running, true))
        return true;
    busyThreads().add(1);
    try {
        std::thread([state = state_]() mutable {
            State::run(state);
            state.reset();
            busyThreads().add(-1);
        }).detach();
        return true;
    } catch (const std::system_error& error) {
        busyThreads().add(-1);
        state_->running = false;
        lost.swap(state_->work);
        logLine(
            QStringLiteral("no thread for background work: %1").arg(QString::fromLocal8Bit(error.what())));
        return false;
    }
}

bool waitForWorkQueues(int milliseconds)
{
    BusyThreads& threads = busyThreads();
    std::unique_lock lock(threads.mutex);
    return threads.changed.wait_for(lock, std::chrono::milliseconds(milliseconds),
                                    [&] { return threads.count == 0; });
}

} // namespace halvern
