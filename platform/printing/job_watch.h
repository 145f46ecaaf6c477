#pragma once

#include "platform/printing/jobs.h"

#include <atomic>

namespace halvern {

/// How a command job is watched until it ends: the decisions, without the waiting. step() says what is to be
/// done next; the operation of that step is told the result.
class JobWatch {
public:
    enum class Step {
        lookAtUnloadFlag,
        askForActiveJobs,
        sleep,
        askForCompletedJobs,
        /// The ends: cancel the job and call no hook; the job has completed; it has not.
        bailOut,
        reportUpdate,
        reportAbort,
    };

    explicit JobWatch(int jobId) : jobId_(jobId) {}

    Step step() const { return step_; }

    /// A null flag counts as set.
    void looked(const std::atomic<bool>* unloadFlag);
    void gotActiveJobs(const jobs::JobList& list);
    /// `result` is usleep's: not 0 if a signal cut the sleep short.
    void slept(int result);
    void gotCompletedJobs(const jobs::JobList& list);

private:
    void end(int state);

    int jobId_;
    int state_ = 0;
    Step step_ = Step::lookAtUnloadFlag;
};

/// Whether a job in the state may still run without anybody's doing.
bool isUnderWay(int jobState);

} // namespace halvern
