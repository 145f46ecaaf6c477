#include "platform/foundation/threads/work_queue.h"
#include "tests/panel_base/commands/command_panel.h"
#include "tests/support/files.h"

#include <QDir>

#include <csignal>

#include <sys/syscall.h>
#include <unistd.h>

namespace halvern {

namespace {

QStringList threadsOfThisProcess()
{
    return QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
}

} // namespace

class CommandOutcomesTest : public CommandTest {
protected:
    /// Sends and waits; the panel is done with it afterwards.
    static std::shared_ptr<CommandPanel> outcomeOn(const char* queue)
    {
        auto panel = makeCommandPanel(queue);
        panel->sendPrinterCommands(kReportAndConfigure);
        EXPECT_TRUE(waitForWorkQueues(1000 * kPatience));
        EXPECT_FALSE(panel->isWatching());
        return panel;
    }
};

TEST_F(CommandOutcomesTest, ACompletedJobBringsItsExactBytesAndOneUpdate)
{
    addQueue("Good");
    const auto panel = makeCommandPanel("Good");
    panel->sendPrinterCommands({QStringLiteral("ReportStatus"), QStringLiteral("Größe")});
    ASSERT_TRUE(waitForWorkQueues(1000 * kPatience));
    EXPECT_EQ(panel->updates, 1);
    EXPECT_EQ(panel->aborts, 0);
    EXPECT_FALSE(panel->hooksRanOnTheMainThread);
    const jobs::JobList done = list("Good", jobs::Which::completed);
    ASSERT_EQ(done.size(), 1);
    const int job = done.first().id;
    EXPECT_EQ(readFile(server->jobFile(job, QStringLiteral("command"))),
              "#CUPS-COMMAND\nReportStatus\nGr\xc3\xb6\xc3\x9f"
              "e\n");
    EXPECT_EQ(jobAttribute(job, "job-name").value(0), QStringLiteral("Updating status ..."));
    EXPECT_EQ(jobAttribute(job, "document-name-supplied").value(0), QStringLiteral("CommandJob"));
    EXPECT_EQ(jobAttribute(job, "document-format-supplied").value(0),
              QStringLiteral("application/vnd.cups-command"));
}

TEST_F(CommandOutcomesTest, EveryOtherEndIsOneAbort)
{
    addQueue("Refusing", "reject");
    addQueue("Stopped", "filter-fails");
    addQueue("Held", "hold");
    addQueue("Rejecting", "", {QStringLiteral("--rejecting")});
    for (const char* queue : {"Refusing", "Stopped", "Held", "Rejecting", "Missing"}) {
        const auto panel = outcomeOn(queue);
        EXPECT_EQ(panel->aborts, 1) << queue;
        EXPECT_EQ(panel->updates, 0) << queue;
    }
}

TEST_F(CommandOutcomesTest, AnInterruptedSleepEndsTheWatchOfAPendingJob)
{
    addQueue("Interrupted", "", {QStringLiteral("--disabled")});
    struct sigaction quiet = {};
    struct sigaction before = {};
    quiet.sa_handler = [](int) {};
    sigaction(SIGUSR1, &quiet, &before);
    const auto panel = makeCommandPanel("Interrupted");
    const QStringList others = threadsOfThisProcess();
    panel->sendPrinterCommands(kReportAndConfigure);
    const int job = onlyJob("Interrupted");
    EXPECT_TRUE(waitUntil([&] {
        for (const QString& thread : threadsOfThisProcess()) {
            if (!others.contains(thread))
                syscall(SYS_tgkill, getpid(), thread.toInt(), SIGUSR1);
        }
        return panel->aborts == 1;
    }));
    EXPECT_EQ(stateOf("Interrupted", job), jobs::kPending);
    EXPECT_TRUE(waitForWorkQueues(1000 * kPatience));
    sigaction(SIGUSR1, &before, nullptr);
}

TEST_F(CommandOutcomesTest, AServerThatDiesDuringTheWatchIsAnAbort)
{
    PrivateCups mortal;
    ASSERT_TRUE(mortal.addQueue(QStringLiteral("Mortal"), QString(),
                                QStringLiteral("halvern://virtual/x?slow=9999")));
    const auto panel = makeCommandPanel("Mortal");
    panel->sendPrinterCommands(kReportAndConfigure);
    ASSERT_NE(onlyJob("Mortal"), 0);
    ASSERT_TRUE(mortal.stop());
    ASSERT_TRUE(waitForWorkQueues(1000 * kPatience));
    EXPECT_EQ(panel->aborts, 1);
    EXPECT_EQ(panel->updates, 0);
    EXPECT_FALSE(panel->isWatching());
}

} // namespace halvern
