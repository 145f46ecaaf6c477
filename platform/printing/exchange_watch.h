// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <atomic>
#include <chrono>
#include <memory>

namespace HALVERN_EXPORT halvern {
namespace cups {

/// A flag that one thread raises to make another give up its conversation with the server.
using CancelFlag = std::shared_ptr<std::atomic<bool>>;

/// Ends a conversation with a server from outside: at its deadline, or when its flag is raised. libcups only
/// counts silence, which each byte starts anew. Lives on the stack of the thread that converses.
class ExchangeWatch {
public:
    using Clock = std::chrono::steady_clock;

    ExchangeWatch(Clock::time_point deadline, CancelFlag cancelled);
    ~ExchangeWatch();
    ExchangeWatch(const ExchangeWatch&) = delete;
    ExchangeWatch& operator=(const ExchangeWatch&) = delete;

    /// From now on `socket` (not owned) is shut down at the end; at once if that has come already.
    void setSocket(int socket);

    void setDeadline(Clock::time_point deadline);

    /// What is left until the deadline, 1 at least.
    int millisecondsLeft() const;

    /// For httpConnect2() and httpReconnect2(): not 0 once the end has come.
    int* giveUp();

    bool hasFired() const;

private:
    struct Entry;
    std::unique_ptr<Entry> entry_;
};

} // namespace cups
} // namespace halvern
