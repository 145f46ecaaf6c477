#include "platform/printing/job_watch.h"

namespace halvern {

bool isUnderWay(int jobState)
{
    return jobState == jobs::kPending || jobState == jobs::kProcessing;
}

void JobWatch::looked(const std::atomic<bool>* unloadFlag)
{
    step_ = !unloadFlag || *unloadFlag ? Step::bailOut : Step::askForActiveJobs;
}

void JobWatch::gotActiveJobs(const jobs::JobList& list)
{
    state_ = jobs::stateOf(list, jobId_);
    if (state_ == 0)
        step_ = Step::askForCompletedJobs;
    else if (isUnderWay(state_))
        step_ = Step::sleep;
    else
        end(state_);
}

void JobWatch::slept(int result)
{
    if (result == 0)
        step_ = Step::lookAtUnloadFlag;
    else
        end(state_);
}

void JobWatch::gotCompletedJobs(const jobs::JobList& list)
{
    end(jobs::stateOf(list, jobId_));
}

void JobWatch::end(int state)
{
    step_ = state == jobs::kCompleted ? Step::reportUpdate : Step::reportAbort;
}

} // namespace halvern
