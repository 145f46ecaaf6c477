// SPDX-License-Identifier: MIT
#include "platform/foundation/bundle.h"
#include "platform/foundation/notifications/notification_center.h"
#include "platform/foundation/threads/semaphore.h"
#include "tests/panel_base/test_panel.h"

#include <QPointer>

#include <csignal>
#include <future>
#include <thread>

#include <unistd.h>

namespace halvern {

class LifecycleTest : public testing::Test {
protected:
    LifecycleTest() { useBuiltBundle(); }

    LogCapture log;
    std::shared_ptr<FakeHost> host =
        std::make_shared<FakeHost>(ppdHeader() + ppdOption("A", {"SharpnessRadius/On"}));
};

TEST_F(LifecycleTest, AHostWithoutAPpdOrWithoutConstraintHandlingGetsNoPanel)
{
    EXPECT_EQ(makePanel<TestPanel>(std::make_shared<FakeHost>(QByteArray())), nullptr);
    host->responds = false;
    EXPECT_EQ(makePanel<TestPanel>(host), nullptr);
    // The panel that said no was released in the ordinary way.
    EXPECT_EQ(log.count(q("entered dealloc in TestPanel")), 2);
}

TEST_F(LifecycleTest, TheUnloadFlagFollowsShowingHidingClosingAndSaving)
{
    const auto panel = makePanel<TestPanel>(host);
    EXPECT_FALSE(panel->pdePluginDidUnload);
    EXPECT_TRUE(panel->shouldHide());
    EXPECT_TRUE(panel->pdePluginDidUnload);
    panel->willShow();
    EXPECT_FALSE(panel->pdePluginDidUnload);
    EXPECT_EQ(panel->refreshes, 1);
    panel->printWindowWillClose(true);
    EXPECT_TRUE(panel->pdePluginDidUnload);
    panel->willShow();
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
    EXPECT_TRUE(panel->pdePluginDidUnload);
    EXPECT_TRUE(host->settings->values().isEmpty());
    EXPECT_EQ(
        log.lines(),
        (QStringList{q("entered shouldHide in TestPanel"), q("entered willShow in TestPanel"),
                     q("entered printWindowWillClose: in TestPanel"), q("entered willShow in TestPanel"),
                     q("entered saveValuesAndReturnError: in TestPanel")}));
}

TEST_F(LifecycleTest, AFailedLayoutIsLoggedAndTriedAgain)
{
    const auto panel = makePanel<TestPanel>(host);
    EXPECT_EQ(panel->panelView(), nullptr);
    EXPECT_TRUE(log.lines().isEmpty());
    panel->layout = q("NoSuchLayout");
    EXPECT_EQ(panel->panelView(), nullptr);
    EXPECT_EQ(panel->panelView(), nullptr);
    EXPECT_EQ(log.count(q("Failed to load nib named NoSuchLayout")), 2);
    panel->layout = q("TessarinSharpness");
    QWidget* loaded = panel->panelView();
    EXPECT_NE(loaded, nullptr);
    EXPECT_EQ(panel->panelView(), loaded);
    EXPECT_EQ(panel->customCalls, 1);
}

TEST_F(LifecycleTest, LastReferenceOnAnotherThreadLeavesTheViewToTheMainThread)
{
    auto panel = makePanel<TestPanel>(host);
    panel->layout = q("TessarinSharpness");
    const QPointer<QWidget> view = panel->panelView();
    ASSERT_FALSE(view.isNull());
    std::thread([panel = std::move(panel)]() mutable { panel.reset(); }).join();
    EXPECT_FALSE(view.isNull());
    EXPECT_EQ(log.count(q("entered dealloc in TestPanel")), 1);
    drainMainQueue();
    EXPECT_TRUE(view.isNull());
}

TEST_F(LifecycleTest, DestructionWaitsForTheUnloadSemaphore)
{
    auto panel = makePanel<TestPanel>(host);
    const auto semaphore = std::make_shared<Semaphore>();
    panel->pdeUnloadSemaphore.set(semaphore);
    auto released = std::async(std::launch::async, [panel = std::move(panel)]() mutable { panel.reset(); });
    ASSERT_TRUE(waitUntil([this] { return log.count(q("entered dealloc in TestPanel")) == 1; }));
    // Not woken yet: nothing after the wait has happened. The signal tells once somebody waits.
    ASSERT_TRUE(waitUntil([&] {
        if (semaphore->signal())
            return true;
        semaphore->wait();
        return false;
    }));
    released.get();
    EXPECT_EQ(log.lines().last(), q("continuing dealloc after waiting for unload semaphore"));
}

TEST_F(LifecycleTest, ABrokenPipeEndsNobody)
{
    const auto panel = makePanel<TestPanel>(host);
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    close(ends[0]);
    testing::internal::CaptureStderr();
    EXPECT_EQ(write(ends[1], "x", 1), -1);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "caught a signal 13\n");
    // Where standard error is broken, too, the line about it is not told anew for ever.
    const int before = dup(STDERR_FILENO);
    dup2(ends[1], STDERR_FILENO);
    EXPECT_EQ(write(ends[1], "x", 1), -1);
    dup2(before, STDERR_FILENO);
    close(before);
    close(ends[1]);
}

} // namespace halvern
