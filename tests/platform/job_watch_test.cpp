#include "platform/printing/job_watch.h"
#include "tests/support/test.h"

namespace halvern {

namespace {

using Step = JobWatch::Step;

constexpr int kWatched = 7;

JobWatch watchOf(const jobs::JobList& activeJobs)
{
    static const std::atomic<bool> clear = false;
    JobWatch watch(kWatched);
    watch.looked(&clear);
    watch.gotActiveJobs(activeJobs);
    return watch;
}

} // namespace

TEST(JobWatchTest, LooksAtTheFlagBeforeEachPollAndBailsOutWhenItIsSetOrMissing)
{
    std::atomic<bool> flag = false;
    JobWatch watch(kWatched);
    EXPECT_EQ(watch.step(), Step::lookAtUnloadFlag);
    watch.looked(&flag);
    EXPECT_EQ(watch.step(), Step::askForActiveJobs);
    watch.gotActiveJobs({{kWatched, jobs::kPending}});
    EXPECT_EQ(watch.step(), Step::sleep);
    watch.slept(0);
    EXPECT_EQ(watch.step(), Step::lookAtUnloadFlag);
    // Set and cleared between two polls, it was never set.
    flag = true;
    flag = false;
    watch.looked(&flag);
    EXPECT_EQ(watch.step(), Step::askForActiveJobs);
    flag = true;
    watch.looked(&flag);
    EXPECT_EQ(watch.step(), Step::bailOut);
    JobWatch interrupted = watchOf({{kWatched, jobs::kProcessing}});
    interrupted.slept(-1);
    EXPECT_EQ(interrupted.step(), Step::reportAbort);
    JobWatch orphan(kWatched);
    orphan.looked(nullptr);
    EXPECT_EQ(orphan.step(), Step::bailOut);
}

TEST(JobWatchTest, AnActiveJobSleepsEndsTheWatchOrIsLookedForAmongTheCompleted)
{
    const std::pair<int, Step> expected[] = {
        {0, Step::askForCompletedJobs},
        {jobs::kPending, Step::sleep},
        {jobs::kHeld, Step::reportAbort},
        {jobs::kProcessing, Step::sleep},
        {jobs::kStopped, Step::reportAbort},
        {jobs::kCanceled, Step::reportAbort},
        {jobs::kAborted, Step::reportAbort},
        {jobs::kCompleted, Step::reportUpdate},
        {10, Step::reportAbort},
    };
    for (const auto& [state, step] : expected)
        EXPECT_EQ(watchOf({{3, jobs::kProcessing}, {kWatched, state}}).step(), step) << state;
    EXPECT_EQ(watchOf({}).step(), Step::askForCompletedJobs);
    EXPECT_EQ(watchOf({{3, jobs::kHeld}}).step(), Step::askForCompletedJobs);
}

TEST(JobWatchTest, AmongTheCompletedJobsOnlyTheCompletedIsASuccess)
{
    const std::pair<jobs::JobList, Step> expected[] = {
        {{{3, jobs::kCanceled}, {kWatched, jobs::kCompleted}}, Step::reportUpdate},
        {{{kWatched, jobs::kCanceled}}, Step::reportAbort},
        {{{kWatched, jobs::kAborted}}, Step::reportAbort},
        {{{3, jobs::kCompleted}}, Step::reportAbort},
        {{}, Step::reportAbort},
    };
    for (const auto& [completed, step] : expected) {
        JobWatch watch = watchOf({});
        watch.gotCompletedJobs(completed);
        EXPECT_EQ(watch.step(), step) << completed.size();
    }
}

} // namespace halvern
