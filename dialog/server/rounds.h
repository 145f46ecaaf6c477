// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace halvern {

/// A worker that does the same again and again, with a rest in between, on one thread for all its life: what
/// the round holds, a connection above all, is touched by no other. Nobody waits for it. Main thread only.
class Rounds {
public:
    /// One round; how long to rest after it.
    using Round = std::function<std::chrono::milliseconds()>;

    /// `end` is called on the worker when it has been told to stop, before what the round holds goes.
    explicit Rounds(Round round, std::function<void()> end = {});

    /// Tells it to stop; a round that is under way ends by itself.
    ~Rounds();
    Rounds(const Rounds&) = delete;
    Rounds& operator=(const Rounds&) = delete;

    /// Cuts the rest short, or has another round follow the present one at once.
    void hurry();

private:
    struct State;
    std::shared_ptr<State> state_;
};

} // namespace halvern
