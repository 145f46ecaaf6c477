// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

namespace halvern {

/// What became of asking a printer to report itself.
struct InquiryResult {
    enum class End {
        reported,  ///< the job has completed
        failed,    ///< it has not, or never came to be: see jobId
        busy,      ///< nothing was sent, because the queue is at another job
        abandoned, ///< the caller had enough; the server has been told to cancel the job
        adrift,    ///< the server does not answer: the job may still be there
    };
    End end;
    int jobId = 0; ///< 0 or less: no job could be created
};

/// Asks the printer of a queue to report its papers and abilities: the command job that the Features panel
/// sends, watched as there. Blocks until the job has ended; `keepWaiting`, called several times a second on
/// this thread with the job's ID, ends it early. Needs no event loop. Any thread; it blocks the main thread,
/// too.
InquiryResult askPrinterForReport(const QString& queue, const std::function<bool(int jobId)>& keepWaiting);

} // namespace halvern
