// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace halvern {

/// Leaves a process behind that waits until the job has ended, half a minute at most, and then posts the two
/// notifications that the printer of the device URI has new data. CUPS writes what a filter reports into the
/// PPD only when the filter and the back end have ended, so neither can post itself.
void notifyAfterJob(int job, const std::string& deviceUri);

} // namespace halvern
