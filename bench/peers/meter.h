// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

/// What opening a dialog costs, taken in the same way for every toolkit that runs on GLib's main loop: from
/// the start of the process, as its caller took it (HALVERN_BENCH_START, microseconds since the epoch), and
/// the longest stretch in which the main thread did not look for input. Main thread only.
class Meter {
public:
    /// The toolkit is up; from here on the main thread's stretches are taken.
    Meter();

    /// The first picture is there. Later calls change nothing.
    void notePainted();

    /// Begins the next line: what follows is measured from now.
    void startAgain();

    /// Writes one line to standard output: milliseconds until painted, until now, the longest stretch, of
    /// processor time; megabytes of memory at most.
    void report() const;

    bool isPainted() const { return painted_ >= 0; }

private:
    double since() const;

    std::int64_t start_;
    double painted_ = -1;
    double processor_ = 0;
};
