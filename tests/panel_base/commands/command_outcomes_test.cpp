// SPDX-License-Identifier: MIT
#include "platform/foundation/threads/work_queue.h"
#include "tests/panel_base/commands/command_panel.h"

#include <csignal>

#include <sys/syscall.h>
#include <unistd.h>

namespace halvern {
namespace {

QStringList threadsOfThisProcess()
{
    return QDir(q("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
}

} // namespace

class CommandOutcomesTest : public CommandTest {};

TEST_F(CommandOutcomesTest, ACompletedJobBringsItsExactBytesAndOneUpdate)
{
    addQueue("Good");
    const auto panel = makeCommandPanel("Good");
    panel->sendPrinterCommands({q("ReportStatus"), q("Größe")});
    ASSERT_TRUE(waitForWorkQueues(1000 * kPatience));
    EXPECT_EQ(panel->updates, 1);
    EXPECT_EQ(panel->aborts, 0);
    EXPECT_FALSE(panel->hooksRanOnTheMainThread);
    const jobs::JobList done = list("Good", jobs::Which::completed);
    ASSERT_EQ(done.size(), 1);
    const int job = done.first().id;
    EXPECT_EQ(readFile(server->jobFile(job, q("command"))), "#CUPS-COMMAND\nReportStatus\nGr\xc3\xb6\xc3\x9f"
                                                            "e\n");
    EXPECT_EQ(jobAttribute(job, "job-name").value(0), q("Updating status ..."));
    EXPECT_EQ(jobAttribute(job, "document-name-supplied").value(0), q("CommandJob"));
    EXPECT_EQ(jobAttribute(job, "document-format-supplied").value(0), q("application/vnd.cups-command"));
}

TEST_F(CommandOutcomesTest, AnInterruptedSleepEndsTheWatchOfAPendingJob)
{
    addQueue("Interrupted", "", {q("--disabled")});
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

} // namespace halvern
