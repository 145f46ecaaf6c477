// SPDX-License-Identifier: MIT
#include "platform/foundation/threads/semaphore.h"
#include "platform/foundation/threads/work_queue.h"
#include "tests/panel_base/commands/command_panel.h"

#include <thread>

namespace halvern {
namespace {

const QString kBailOut = q("bailing out of wait loop bc pde plugin unloaded.");

} // namespace

class CommandUnloadTest : public CommandTest {
protected:
    /// A job that never starts, watched by the panel.
    std::shared_ptr<CommandPanel> panelWithPendingJob(const char* queue)
    {
        addQueue(queue, "", {q("--disabled")});
        auto panel = makeCommandPanel(queue);
        panel->sendPrinterCommands(kReportAndConfigure);
        EXPECT_NE(onlyJob(queue), 0);
        return panel;
    }
};

TEST_F(CommandUnloadTest, HidingEndsTheWatchAndPurgesTheJobWithoutAHook)
{
    const auto panel = panelWithPendingJob("Hide");
    const int job = onlyJob("Hide");
    panel->shouldHide();
    ASSERT_TRUE(waitForWorkQueues(1000 * kPatience));
    EXPECT_EQ(stateOf("Hide", job), 0);
    EXPECT_EQ(log.count(kBailOut), 1);
    EXPECT_EQ(panel->aborts + panel->updates, 0);
    // Nobody waited, so the watch itself let go of the semaphore, and the panel may send again.
    EXPECT_FALSE(panel->isWatching());
    panel->willShow();
    panel->sendPrinterCommands(kReportAndConfigure);
    EXPECT_TRUE(panel->isWatching());
    panel->shouldHide();
}

TEST_F(CommandUnloadTest, ADestructionThatFindsTheWatchWaitsForItAndReleasesTheSemaphore)
{
    // A panel whose destruction runs although the watch still holds it.
    addQueue("Waits", "", {q("--disabled")});
    auto host = std::make_shared<FakeHost>();
    host->printer = std::make_shared<Printer>(q("Waits"), QString());
    const auto panel = std::make_shared<CommandPanel>();
    ASSERT_TRUE(panel->initWithCallback(host));
    panel->sendPrinterCommands(kReportAndConfigure);
    ASSERT_NE(onlyJob("Waits"), 0);
    const std::weak_ptr<Semaphore> semaphore = panel->pdeUnloadSemaphore.get();
    std::thread([&] { panel->dealloc(); }).join();
    ASSERT_TRUE(waitForWorkQueues(1000 * kPatience));
    EXPECT_EQ(log.lines(), (QStringList{q("entered dealloc in CommandPanel"), kBailOut,
                                        q("continuing dealloc after waiting for unload semaphore")}));
    EXPECT_TRUE(semaphore.expired());
    EXPECT_TRUE(active("Waits").isEmpty());
    EXPECT_EQ(panel->aborts + panel->updates, 0);
}

TEST_F(CommandUnloadTest, TheUnloadOfAWatchWithoutAJobCancelsNobodyElses)
{
    addQueue("Neighbour", "slow=9999");
    const int foreign = sendForeignJob("Neighbour");
    ASSERT_TRUE(reaches("Neighbour", foreign, jobs::kProcessing));
    // CUPS would take these for the current job and for all jobs.
    for (const int none : {0, -1}) {
        const auto panel = makeCommandPanel("Neighbour");
        panel->shouldHide();
        panel->waitForJobCompletion(none);
        ASSERT_TRUE(waitForWorkQueues(1000 * kPatience));
    }
    EXPECT_EQ(log.count(kBailOut), 2);
    EXPECT_EQ(stateOf("Neighbour", foreign), jobs::kProcessing);
    EXPECT_TRUE(jobs::Server().cancelAndPurge(q("Neighbour"), foreign));
    EXPECT_TRUE(reaches("Neighbour", foreign, jobs::kCanceled));
}

} // namespace halvern
