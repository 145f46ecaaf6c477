// SPDX-License-Identifier: MIT
#include "dialog/server/rounds.h"

#include "platform/foundation/threads/work_queue.h"

#include <condition_variable>
#include <mutex>

namespace halvern {

struct Rounds::State {
    std::mutex mutex;
    std::condition_variable changed;
    bool isHurried = false;
    bool isStopped = false;

    // False: there is to be no other round.
    bool rest(std::chrono::milliseconds time)
    {
        std::unique_lock lock(mutex);
        changed.wait_for(lock, time, [this] { return isHurried || isStopped; });
        isHurried = false;
        return !isStopped;
    }
};

Rounds::Rounds(Round round, std::function<void()> end) : state_(std::make_shared<State>())
{
    WorkQueue().async([state = state_, round = std::move(round), end = std::move(end)] {
        while (state->rest(round())) {
        }
        if (end)
            end();
    });
}

Rounds::~Rounds()
{
    const std::scoped_lock lock(state_->mutex);
    state_->isStopped = true;
    state_->changed.notify_all();
}

void Rounds::hurry()
{
    const std::scoped_lock lock(state_->mutex);
    state_->isHurried = true;
    state_->changed.notify_all();
}

} // namespace halvern
