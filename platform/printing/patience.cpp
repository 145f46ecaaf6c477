// SPDX-License-Identifier: MIT
#include "platform/printing/patience.h"

#include "platform/foundation/threads/work_queue.h"

#include <QCoreApplication>
#include <QThread>

#include <chrono>

namespace halvern::cups {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kPatience(50);

// The main thread's only.
Clock::duration leftInThisTurn = kPatience;
bool isTurnBegun = false;

void spend(Clock::duration time)
{
    // Before its event loop runs, each wait is one of its own.
    if (QThread::currentThread()->loopLevel() == 0)
        return;
    leftInThisTurn -= time;
    if (std::exchange(isTurnBegun, true))
        return;
    mainQueue().async([] {
        leftInThisTurn = kPatience;
        isTurnBegun = false;
    });
}

} // namespace

bool isMainThread()
{
    const QCoreApplication* app = QCoreApplication::instance();
    return app && app->thread() == QThread::currentThread();
}

bool waitPatiently(std::condition_variable& changed, std::unique_lock<std::mutex>& lock,
                   const std::function<bool()>& isDone)
{
    const Clock::time_point begin = Clock::now();
    const bool isInTime = changed.wait_for(lock, leftInThisTurn, isDone);
    spend(Clock::now() - begin);
    return isInTime;
}

bool runPatiently(std::function<void()> work)
{
    if (!isMainThread()) {
        work();
        return true;
    }

    struct Run {
        std::mutex mutex;
        std::condition_variable changed;
        bool isDone = false;
    };

    const auto run = std::make_shared<Run>();
    const bool isRunning = WorkQueue().async([run, work = std::move(work)] {
        work();
        const std::scoped_lock lock(run->mutex);
        run->isDone = true;
        run->changed.notify_all();
    });
    if (!isRunning)
        return false;
    std::unique_lock lock(run->mutex);
    return waitPatiently(run->changed, lock, [&] { return run->isDone; });
}

} // namespace halvern::cups
