#include "platform/printing/job_watch.h"
#include "tests/support/test.h"

namespace halvern {

namespace {

using Step = JobWatch::Step;

constexpr int kWatched = 7;

JobWatch watchOf(const jobs::JobList& activeJobs)
{
    JobWatch watch(kWatched);
    watch.looked(false);
    watch.gotActiveJobs(activeJobs);
    return watch;
}

} // namespace

TEST(JobWatchTest, LooksBeforeEachPollAndStopsWhenItIsEnough)
{
    JobWatch watch(kWatched);
    EXPECT_EQ(watch.step(), Step::lookWhetherEnough);
    watch.looked(false);
    EXPECT_EQ(watch.step(), Step::askForActiveJobs);
    watch.gotActiveJobs({{kWatched, jobs::kPending}});
    EXPECT_EQ(watch.step(), Step::pause);
    watch.paused(true);
    EXPECT_EQ(watch.step(), Step::lookWhetherEnough);
    watch.looked(true);
    EXPECT_EQ(watch.step(), Step::endEnough);
    JobWatch interrupted = watchOf({{kWatched, jobs::kProcessing}});
    interrupted.paused(false);
    EXPECT_EQ(interrupted.step(), Step::endFailed);
}

TEST(JobWatchTest, AnActiveJobSleepsEndsTheWatchOrIsLookedForAmongTheCompleted)
{
    const std::pair<int, Step> expected[] = {
        {0, Step::askForCompletedJobs},
        {jobs::kPending, Step::pause},
        {jobs::kHeld, Step::endFailed},
        {jobs::kProcessing, Step::pause},
        {jobs::kStopped, Step::endFailed},
        {jobs::kCanceled, Step::endFailed},
        {jobs::kAborted, Step::endFailed},
        {jobs::kCompleted, Step::endCompleted},
        {10, Step::endFailed},
    };
    for (const auto& [state, step] : expected)
        EXPECT_EQ(watchOf({{3, jobs::kProcessing}, {kWatched, state}}).step(), step) << state;
    EXPECT_EQ(watchOf({}).step(), Step::askForCompletedJobs);
    EXPECT_EQ(watchOf({{3, jobs::kHeld}}).step(), Step::askForCompletedJobs);
}

TEST(JobWatchTest, AmongTheCompletedJobsOnlyTheCompletedIsASuccess)
{
    const std::pair<jobs::JobList, Step> expected[] = {
        {{{3, jobs::kCanceled}, {kWatched, jobs::kCompleted}}, Step::endCompleted},
        {{{kWatched, jobs::kCanceled}}, Step::endFailed},
        {{{kWatched, jobs::kAborted}}, Step::endFailed},
        {{{3, jobs::kCompleted}}, Step::endFailed},
        {{}, Step::endFailed},
    };
    for (const auto& [completed, step] : expected) {
        JobWatch watch = watchOf({});
        watch.gotCompletedJobs(completed);
        EXPECT_EQ(watch.step(), step) << completed.size();
    }
}

} // namespace halvern
