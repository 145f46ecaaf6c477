// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/job/user_jobs.h"

#include <QTextStream>

#include <optional>

namespace halvern {

/// What to do about the user's jobs: list them, or do something to one.
struct ListJobsRequest {
    QString printer; ///< empty: all of the print server's
    bool asJson = false;
    bool withEnded = false;
    std::optional<JobDeed> deed = {};
    int jobId = 0;       ///< the deed's
    QString target = {}; ///< the queue to move it to
};

/// Writes the user's jobs on `out`, or does the deed and says so there. What went wrong goes to `err`. The
/// program's exit status. Main thread, no event loop and no display needed; waits for the server.
int listJobs(const ListJobsRequest& request, QTextStream& out, QTextStream& err);

} // namespace halvern
