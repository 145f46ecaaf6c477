// SPDX-License-Identifier: MIT
#include "platform/printing/job_watch.h"

namespace halvern {

bool isUnderWay(int jobState)
{
    return jobState == jobs::kPending || jobState == jobs::kProcessing;
}

void JobWatch::looked(bool isEnough)
{
    step_ = isEnough ? Step::endEnough : Step::askForActiveJobs;
}

void JobWatch::gotActiveJobs(const jobs::JobList& list)
{
    state_ = jobs::stateOf(list, jobId_);
    if (state_ == 0)
        step_ = Step::askForCompletedJobs;
    else if (isUnderWay(state_))
        step_ = Step::pause;
    else
        end(state_);
}

void JobWatch::paused(bool whole)
{
    if (whole)
        step_ = Step::lookWhetherEnough;
    else
        end(state_);
}

void JobWatch::gotCompletedJobs(const jobs::JobList& list)
{
    end(jobs::stateOf(list, jobId_));
}

void JobWatch::end(int state)
{
    step_ = state == jobs::kCompleted ? Step::endCompleted : Step::endFailed;
}

} // namespace halvern
