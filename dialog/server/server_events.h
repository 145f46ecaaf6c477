// SPDX-License-Identifier: MIT
#pragma once

#include "platform/printing/cups_connection.h"

namespace halvern {

/// A subscription to what happens to a server's printers and their jobs, fetched by asking for it, which
/// costs the server next to nothing. It ends by itself soon after nobody renews it. One thread at a time,
/// with a connection of the caller's.
class ServerEvents {
public:
    enum class News {
        none,
        some,
        unknown, ///< the server grants no subscription: it has to be asked for everything
    };

    /// What has happened since the last call. The first one subscribes.
    News look(cups::Connection& server);

    /// Takes the subscription back, if the server is willing to listen for a second.
    void end();

private:
    using Clock = std::chrono::steady_clock;

    bool subscribe(cups::Connection& server);
    bool renew(cups::Connection& server);
    News fetch(cups::Connection& server);

    int subscription_ = 0; ///< 0: none
    int next_ = 1;         ///< the first event that is not known
    Clock::time_point renewAt_;
    Clock::time_point tryAgainAt_;
};

} // namespace halvern
