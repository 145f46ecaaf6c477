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
    std::condition_variable hasNews;
    std::deque<std::function<void()>> work;
    bool hasThread = false;
    bool isBusy = false;
    bool isLetGo = false;

    void run();
};

void WorkQueue::State::run()
{
    std::unique_lock lock(mutex);
    for (;;) {
        while (!work.empty()) {
            std::function<void()> next = std::move(work.front());
            work.pop_front();
            lock.unlock();
            next();
            // It may hold a last reference, which goes here and without the lock.
            next = nullptr;
            lock.lock();
        }
        if (std::exchange(isBusy, false))
            busyThreads().add(-1);
        if (isLetGo) {
            hasThread = false;
            return;
        }
        hasNews.wait(lock);
    }
}

struct WorkQueue::Handle {
    const std::shared_ptr<State> state = std::make_shared<State>();

    Handle() = default;
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    ~Handle()
    {
        const std::scoped_lock lock(state->mutex);
        state->isLetGo = true;
        state->hasNews.notify_all();
    }
};

WorkQueue::WorkQueue() : handle_(std::make_shared<Handle>()) {}

bool WorkQueue::async(std::function<void()> work) const
{
    State& state = *handle_->state;
    std::deque<std::function<void()>> lost; // let go of after the lock: it may hold a last reference
    const std::scoped_lock lock(state.mutex);
    state.work.push_back(std::move(work));
    if (!std::exchange(state.isBusy, true))
        busyThreads().add(1);
    if (std::exchange(state.hasThread, true)) {
        state.hasNews.notify_all();
        return true;
    }
    try {
        std::thread([kept = handle_->state] { kept->run(); }).detach();
        return true;
    } catch (const std::system_error& error) {
        busyThreads().add(-1);
        state.hasThread = state.isBusy = false;
        lost.swap(state.work);
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
