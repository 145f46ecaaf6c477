// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <condition_variable>
#include <mutex>

namespace HALVERN_EXPORT halvern {

/// A counting semaphore whose signal tells whether somebody was waiting, which decides who lets go of it. Any
/// thread.
class Semaphore {
public:
    explicit Semaphore(int count = 0) : count_(count) {}

    Semaphore(const Semaphore&) = delete;
    Semaphore& operator=(const Semaphore&) = delete;

    /// Blocks, without time limit, until the count is positive, and takes one.
    void wait();

    /// Adds one. True if that woke a thread that was waiting.
    bool signal();

private:
    std::mutex mutex_;
    std::condition_variable changed_;
    int count_;
    int waiting_ = 0;
    int woken_ = 0;
};

} // namespace halvern
