// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/job/job_status.h"

namespace halvern {

/// What the server said to something that it was told to do.
struct ActionResult {
    bool isAnswered = true; ///< false: it could not be reached, or kept silent
    QString problem;        ///< a sentence; empty if it was done, or nothing was left to do
};

/// What a server may take to do something.
inline constexpr cups::Limits kActionLimits{std::chrono::seconds(5), std::chrono::seconds(5)};

/// Whether the answer, or the refusal to give one, says that the user may not do it.
bool isForbidden(const cups::Connection& server, const cups::Ipp& answer);

/// Cancels a job, on the calling worker. A job that has already ended is no problem.
ActionResult cancelJob(const QString& queue, int jobId);

/// Does what gets a resting job on its way, on the calling worker.
ActionResult applyRemedy(Remedy remedy, const QString& queue, int jobId);

} // namespace halvern
