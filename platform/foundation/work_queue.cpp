#include "platform/foundation/work_queue.h"

#include "platform/foundation/log.h"

#include <QCoreApplication>
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

// What waits for the main thread. It lives for ever, and the events that are posted carry nothing: a worker
// that nobody joins may submit while the application object is going, and work that never runs is never
// destroyed either (that happens under the event queue's lock, where a panel's last reference must not drop).
struct MainWork {
    std::mutex mutex;
    std::deque<std::function<void()>> work;
    QObject target;

    MainWork()
    {
        if (const QCoreApplication* app = QCoreApplication::instance())
            target.moveToThread(app->thread());
    }

    void submit(std::function<void()> next)
    {
        {
            const std::scoped_lock lock(mutex);
            work.push_back(std::move(next));
        }
        QMetaObject::invokeMethod(
            &target, [this] { runOne(); }, Qt::QueuedConnection);
    }

    // One for each event, so that the work keeps its place among the other events.
    void runOne()
    {
        std::function<void()> next;
        {
            const std::scoped_lock lock(mutex);
            next = std::move(work.front());
            work.pop_front();
        }
        next();
    }
};

MainWork& mainWork()
{
    static MainWork* const work = std::make_unique<MainWork>().release();
    return *work;
}

void settleMainWork()
{
    mainWork();
}

Q_COREAPP_STARTUP_FUNCTION(settleMainWork)

} // namespace

void MainQueue::async(std::function<void()> work) const
{
    mainWork().submit(std::move(work));
}

void MainQueue::after(int milliseconds, std::function<void()> work) const
{
    async([milliseconds, work = std::move(work)]() mutable {
        // Like other work that never runs, it stays if the timer is dropped.
        std::function<void()>* const held =
            std::make_unique<std::function<void()>>(std::move(work)).release();
        QTimer::singleShot(milliseconds, &mainWork().target, [held] {
            const std::unique_ptr<std::function<void()>> due(held);
            (*due)();
        });
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
        state_->work.clear();
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
