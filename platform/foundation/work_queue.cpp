#include "platform/foundation/work_queue.h"

#include "platform/foundation/log.h"

#include <QCoreApplication>
#include <QTimer>

#include <deque>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace halvern {

namespace {

// Where the main thread's work is posted to. It lives for ever: a worker that nobody joins may post while the
// application object is going.
QObject* makeMainTarget()
{
    QObject* target = std::make_unique<QObject>().release();
    if (const QCoreApplication* app = QCoreApplication::instance())
        target->moveToThread(app->thread());
    return target;
}

QObject* mainTarget()
{
    static QObject* const target = makeMainTarget();
    return target;
}

void settleMainTarget()
{
    mainTarget();
}

Q_COREAPP_STARTUP_FUNCTION(settleMainTarget)

} // namespace

void MainQueue::async(std::function<void()> work) const
{
    QMetaObject::invokeMethod(mainTarget(), std::move(work), Qt::QueuedConnection);
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

void WorkQueue::async(std::function<void()> work) const
{
    const std::scoped_lock lock(state_->mutex);
    state_->work.push_back(std::move(work));
    if (std::exchange(state_->running, true))
        return;
    try {
        std::thread([state = state_] { State::run(state); }).detach();
    } catch (const std::system_error& error) {
        state_->running = false;
        state_->work.clear();
        logLine(
            QStringLiteral("no thread for background work: %1").arg(QString::fromLocal8Bit(error.what())));
    }
}

} // namespace halvern
