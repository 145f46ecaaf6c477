// SPDX-License-Identifier: MIT
#include "platform/foundation/threads/work_queue.h"
#include "tests/panel_base/commands/command_panel.h"

#include <csignal>

namespace halvern {

class QueueStateTest : public CommandTest {};

TEST_F(QueueStateTest, AJobsStateIsWaitedForOrToldAtOnce)
{
    addQueue("State", "slow=9999");
    const auto panel = makeCommandPanel("State");
    const QString queue = q("State");
    const auto stateOfJob = [&](int id, bool wait) {
        return offMainThread(
            [&] { return panel->jobStateForDesinationName_JobID_waitWhileInProcess(queue, id, wait); });
    };
    EXPECT_EQ(stateOfJob(999, false), jobs::kCompleted);
    EXPECT_EQ(log.lines(), QStringList{q("Cups Job 999 is completed")});
    const int job = sendForeignJob("State");
    ASSERT_TRUE(reaches("State", job, jobs::kProcessing));
    EXPECT_EQ(stateOfJob(job, false), jobs::kProcessing);
    WorkQueue().async([&] {
        // Once it has been seen running, so that the wait is one.
        const QString running = q("Cups Job %1 is processing").arg(job);
        while (log.count(running) < 2)
            std::this_thread::yield();
        jobs::Server().cancelAndPurge(queue, job);
    });
    EXPECT_EQ(stateOfJob(job, true), jobs::kCompleted);
}

TEST_F(QueueStateTest, StateReasonsAreTheQueuesListOrNothing)
{
    addQueue("Reasons", "stop&reason=cover-open");
    addQueue("Idle");
    const auto panel = makeCommandPanel("Reasons");
    const auto reasons = [](KSTRVLBasePDEHalvern& asked) {
        return offMainThread([&] { return asked.printerStateReasons(); });
    };
    EXPECT_EQ(reasons(*makeCommandPanel("Idle")), QStringList{q("none")});
    sendForeignJob("Reasons");
    ASSERT_TRUE(waitUntil([&] { return reasons(*panel).value_or(QStringList()).size() == 2; }));
    EXPECT_TRUE(reasons(*panel)->contains(q("cover-open")));
    EXPECT_TRUE(reasons(*panel)->contains(q("paused")));
    EXPECT_EQ(offMainThread([&] { return panel->statesForDestinationName(q("Unknown")); }), std::nullopt);
}

} // namespace halvern
