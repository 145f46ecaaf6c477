// SPDX-License-Identifier: MIT
#pragma once

/// A system that fails when it is told to, for a program that links this library, which then stands before
/// the C library. Calls count in all threads from arm() to disarm().
namespace halvern::failing {

enum Calls { kAllocations = 1, kFileCalls = 2, kWrites = 4 };

enum How {
    kCount, ///< nothing fails
    kOnce,  ///< that call
    kFull,  ///< that one, and all after it
    kKill,  ///< the process ends there
    kTorn,  ///< half of what is written is written, then the process ends
};

} // namespace halvern::failing

extern "C" {
/// The call with the number `at`, from 1, of these kinds fails.
void halvern_failing_arm(int calls, long at, int how);
/// How many there were since.
long halvern_failing_disarm();
/// Allocated and not freed.
long halvern_failing_blocks();
}
