// SPDX-License-Identifier: MIT
#pragma once

namespace halvern {

/// Prepares what a process that reads a file may do, so that closing the door later costs little. Once.
void prepareSandbox();

/// From here on this process may read files and use memory and time within limits: it writes no file, opens
/// no connection and starts no program, and it ends with its parent. False if the system does not let us.
bool enterSandbox();

} // namespace halvern
