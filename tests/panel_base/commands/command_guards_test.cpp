// SPDX-License-Identifier: MIT
#include "platform/foundation/threads/work_queue.h"
#include "tests/panel_base/commands/command_panel.h"

namespace halvern {

class CommandGuardsTest : public CommandTest {};

TEST_F(CommandGuardsTest, WhileAJobIsWatchedNoOtherIsSent)
{
    addQueue("Busy", "slow=9999");
    const auto panel = makeCommandPanel("Busy");
    send(*panel);
    EXPECT_TRUE(panel->isWatching());
    const int job = onlyJob("Busy");
    send(*panel);
    EXPECT_EQ(onlyJob("Busy"), job);
    jobs::Server().cancelAndPurge(q("Busy"), job);
    ASSERT_TRUE(waitForWorkQueues(1000 * kPatience));
    EXPECT_EQ(panel->aborts, 1);
}

TEST_F(CommandGuardsTest, AHiddenPanelSendsNothing)
{
    addQueue("Hidden");
    const auto panel = makeCommandPanel("Hidden");
    panel->shouldHide();
    send(*panel);
    EXPECT_FALSE(panel->isWatching());
    EXPECT_TRUE(active("Hidden").isEmpty());
    EXPECT_TRUE(list("Hidden", jobs::Which::completed).isEmpty());
}

TEST_F(CommandGuardsTest, OnlyAProcessingJobOfTheQueueHoldsACommandBack)
{
    addQueue("Other", "slow=9999");
    const int processing = sendForeignJob("Other");
    ASSERT_TRUE(reaches("Other", processing, jobs::kProcessing));
    const auto panel = makeCommandPanel("Other");
    EXPECT_EQ(offMainThread([&] { return panel->activeJobIDForDesinationName(q("Other")); }), processing);
    send(*panel);
    EXPECT_FALSE(panel->isWatching());
    EXPECT_EQ(active("Other").size(), 1);

    addQueue("Waiting", "", {q("--disabled")});
    const int pending = sendForeignJob("Waiting");
    ASSERT_TRUE(reaches("Waiting", pending, jobs::kPending));
    const auto second = makeCommandPanel("Waiting");
    EXPECT_EQ(offMainThread([&] { return second->activeJobIDForDesinationName(q("Waiting")); }), 0);
    send(*second);
    EXPECT_TRUE(second->isWatching());
    EXPECT_EQ(active("Waiting").size(), 2);
    second->shouldHide();
    ASSERT_TRUE(waitForWorkQueues(1000 * kPatience));
    EXPECT_TRUE(jobs::Server().cancelAndPurge(q("Other"), processing));
    EXPECT_EQ(panel->aborts + panel->updates + second->aborts + second->updates, 0);
}

TEST_F(CommandGuardsTest, ACommandFromWithinAHookIsRefusedAndOneAfterItIsSent)
{
    addQueue("Hook");
    const auto panel = makeCommandPanel("Hook");
    panel->inHook = [](CommandPanel& self) { self.sendPrinterCommands(kReportAndConfigure); };
    send(*panel);
    ASSERT_TRUE(waitForWorkQueues(1000 * kPatience));
    EXPECT_EQ(panel->updates, 1);
    EXPECT_EQ(list("Hook", jobs::Which::completed).size(), 1);
    panel->inHook = nullptr;
    send(*panel);
    ASSERT_TRUE(waitForWorkQueues(1000 * kPatience));
    EXPECT_EQ(panel->updates, 2);
    EXPECT_EQ(list("Hook", jobs::Which::completed).size(), 2);
}

TEST_F(CommandGuardsTest, OfTwoThatSendAtOnceOneIsRefused)
{
    addQueue("Twice");
    const auto panel = makeCommandPanel("Twice");
    panel->whileAsking = [](CommandPanel& self) { send(self); };
    send(*panel);
    ASSERT_TRUE(waitForWorkQueues(1000 * kPatience));
    EXPECT_EQ(panel->updates, 1);
    EXPECT_EQ(list("Twice", jobs::Which::completed).size(), 1);
}

TEST_F(CommandGuardsTest, APrinterWithoutANameEndsInOneAbortAndTouchesNoOtherQueue)
{
    addQueue("Bystander", "slow=9999", {q("--default")});
    const int job = sendForeignJob("Bystander");
    ASSERT_TRUE(reaches("Bystander", job, jobs::kProcessing));
    const auto panel = makeCommandPanel("");
    EXPECT_EQ(offMainThread([&] { return panel->activeJobIDForDesinationName(QString()); }), 0);
    EXPECT_EQ(offMainThread([&] { return panel->printerStateReasons(); }), std::nullopt);
    send(*panel);
    ASSERT_TRUE(waitForWorkQueues(1000 * kPatience));
    EXPECT_EQ(panel->aborts, 1);
    EXPECT_EQ(onlyJob("Bystander"), job);
    EXPECT_TRUE(jobs::Server().cancelAndPurge(q("Bystander"), job));
}

} // namespace halvern
