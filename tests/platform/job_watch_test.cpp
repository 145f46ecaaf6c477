// SPDX-License-Identifier: MIT
#include "platform/printing/job_watch.h"
#include "tests/support/test.h"

namespace halvern {

TEST(JobWatchTest, AnActiveJobSleepsEndsTheWatchOrIsLookedForAmongTheCompleted)
{
    using Step = JobWatch::Step;
    constexpr int kWatched = 7;
    constexpr Step kLook = Step::askForCompletedJobs;

    const struct {
        jobs::JobList active;
        Step step;
        jobs::JobList completed = {};
        Step end = Step::endFailed;
    } cases[] = {
        {{{3, jobs::kProcessing}, {kWatched, jobs::kPending}}, Step::pause},
        {{{kWatched, jobs::kProcessing}}, Step::pause},
        {{{kWatched, jobs::kHeld}}, Step::endFailed},
        {{{kWatched, jobs::kStopped}}, Step::endFailed},
        {{{kWatched, jobs::kCanceled}}, Step::endFailed},
        {{{kWatched, jobs::kCompleted}}, Step::endCompleted},
        {{{kWatched, 10}}, Step::endFailed},
        {{{kWatched, 0}}, kLook},
        {{}, kLook, {{3, jobs::kCanceled}, {kWatched, jobs::kCompleted}}, Step::endCompleted},
        {{{3, jobs::kHeld}}, kLook, {{3, jobs::kCompleted}, {kWatched, jobs::kAborted}}},
        {{}, kLook, {{3, jobs::kCompleted}}},
    };

    for (const auto& c : cases) {
        JobWatch watch(kWatched);
        watch.looked(false);
        watch.gotActiveJobs(c.active);
        EXPECT_EQ(watch.step(), c.step);
        if (watch.step() != kLook)
            continue;
        watch.gotCompletedJobs(c.completed);
        EXPECT_EQ(watch.step(), c.end);
    }
}

} // namespace halvern
