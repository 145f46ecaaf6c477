// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

/// The printer's answer to a command file. It travels on CUPS's back channel, from the back end to the
/// filter: a line "PAPERS LENGTH" and LENGTH bytes, the list of the papers that are loaded
/// (papers/README.md).
namespace halvern::back_channel {

/// The back end's side. False if nobody reads, the filter takes nothing for five seconds, or the job is
/// cancelled. Cancellation must be installed.
bool sendPapers(const std::string& list);

/// The filter's side: waits for the answer as long as the back end runs. Nothing if it ends without one. The
/// filter has closed its output before: a back end that gives a job up reads that to its end.
std::optional<std::string> receivePapers();

} // namespace halvern::back_channel
