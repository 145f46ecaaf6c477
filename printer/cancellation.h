// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

/// SIGTERM, by which CUPS cancels a job, as a flag. It can only arrive inside the waits below, so that none
/// is missed between looking at the flag and waiting. Main thread only.
namespace halvern::cancellation {

/// Begins to catch SIGTERM, and ignores SIGPIPE. Once, before the first wait.
void install();

/// Whether SIGTERM has arrived by the last wait.
bool requested();

/// Waits until `fd` can be read (or is at its end); false if cancelled.
bool waitReadable(int fd);

/// Waits for the time; false if cancelled before or during it.
bool pause(std::chrono::milliseconds time);

} // namespace halvern::cancellation
