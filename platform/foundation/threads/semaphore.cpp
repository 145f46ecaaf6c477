// SPDX-License-Identifier: MIT
#include "platform/foundation/threads/semaphore.h"

namespace halvern {

void Semaphore::wait()
{
    std::unique_lock lock(mutex_);
    if (count_ > 0) {
        --count_;
        return;
    }
    ++waiting_;
    changed_.wait(lock, [this] { return woken_ > 0; });
    --woken_;
}

bool Semaphore::signal()
{
    const std::scoped_lock lock(mutex_);
    if (waiting_ == 0) {
        ++count_;
        return false;
    }
    // The unit goes to the waiter directly, so that two signals in a row cannot both claim to have woken it.
    --waiting_;
    ++woken_;
    changed_.notify_one();
    return true;
}

} // namespace halvern
