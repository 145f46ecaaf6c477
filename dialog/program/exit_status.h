// SPDX-License-Identifier: MIT
#pragma once

namespace halvern {

/// How the program ends. --help lists them.
enum ExitStatus {
    kExitPrinted = 0,
    kExitFailed = 1,
    kExitUsage = 2,
    kExitUnfinished = 3, ///< the job is on the queue, and has not ended
    kExitCancelled = 4,  ///< nothing was printed, because somebody said so
    kExitUnknown = 5,    ///< the job was sent, and nobody tells how it ended
    kExitDiffers = 6,    ///< printed, but the server does not hold the job as it was sent, or does not tell
    kExitLogin = 7,      ///< a name and a password were wanted, and not given, or wrong
};

} // namespace halvern
