#pragma once

namespace halvern {

/// How the program ends.
enum ExitStatus { kExitPrinted = 0, kExitFailed = 1, kExitUsage = 2, kExitUnfinished = 3 };

} // namespace halvern
