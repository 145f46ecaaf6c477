// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"
#include "platform/printing/jobs.h"

namespace HALVERN_EXPORT halvern {

/// How a command job is watched until it ends: the decisions, without the waiting. step() says what is to be
/// done next; the operation of that step is told the result. One thread at a time; nothing here blocks.
class JobWatch {
public:
    enum class Step {
        lookWhetherEnough,
        askForActiveJobs,
        pause,
        askForCompletedJobs,
        /// The ends: who watches has had enough; the job has completed; it has not.
        endEnough,
        endCompleted,
        endFailed,
    };

    explicit JobWatch(int jobId) : jobId_(jobId) {}

    Step step() const { return step_; }

    void looked(bool isEnough);
    void gotActiveJobs(const jobs::JobList& list);
    /// False if the pause was cut short.
    void paused(bool whole);
    void gotCompletedJobs(const jobs::JobList& list);

private:
    void end(int state);

    int jobId_;
    int state_ = 0;
    Step step_ = Step::lookWhetherEnough;
};

/// Whether a job in the state may still run without anybody's doing.
bool isUnderWay(int jobState);

} // namespace halvern
