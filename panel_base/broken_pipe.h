// SPDX-License-Identifier: MIT
#pragma once

namespace halvern {

/// Installs the process-wide handler for SIGPIPE, replacing any other: it writes "caught a signal 13\n" to
/// standard error, at most once a second if that is a terminal, and returns, so that writing to a closed pipe
/// ends nobody's dialog. False if the system refuses. Any thread.
bool installBrokenPipeHandler();

} // namespace halvern
