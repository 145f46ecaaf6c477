// SPDX-License-Identifier: MIT
// The dialog as a process, left while it asks the printer.
#include "platform/printing/jobs.h"
#include "tests/support/test.h"

#include <csignal>

namespace halvern {
namespace {

class LeavingDuringRefresh : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(server.isRunning()) << qPrintable(server.error());
        ASSERT_TRUE(
            server.addQueue(q("Slow"), QString(), q("halvern://virtual/Slow?slow=9999&only=commands")))
            << qPrintable(server.error());
    }

    static jobs::JobList activeJobs() { return jobs::Server().jobs(q("Slow"), jobs::Which::active); }

    static bool isAsking()
    {
        const auto active = activeJobs();
        return active.size() == 1 && active.front().state == jobs::kProcessing;
    }

    /// Starts the dialog's driver with these steps.
    void startDriver(QProcess& program, const char* steps)
    {
        QFile file(folder.filePath(q("steps")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(steps) > 0);
        file.close();
        program.start(q(HALVERN_DEMO_PROGRAM),
                      {file.fileName(), folder.path(), q("--printer"), q("Slow"), q(HALVERN_DEMO_PHOTO)});
    }

    PrivateCups server;
    QTemporaryDir folder;
};

TEST_F(LeavingDuringRefresh, ASignalEndsTheProgramAndTakesTheJobBack)
{
    QProcess program;
    program.start(q(HALVERN_PRINT_PROGRAM), {q("--printer"), q("Slow"), q(HALVERN_DEMO_PHOTO)});
    ASSERT_TRUE(waitUntil([] { return isAsking(); }));
    ASSERT_EQ(::kill(pid_t(program.processId()), SIGTERM), 0);
    ASSERT_TRUE(program.waitForFinished(1000 * kPatience));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_TRUE(activeJobs().isEmpty());
}

TEST_F(LeavingDuringRefresh, AnotherPrinterTakesTheJobBackWhileTheDialogGoesOn)
{
    ASSERT_TRUE(server.addQueue(q("Other"))) << qPrintable(server.error());
    QProcess program;
    startDriver(program, "ready\npage com.halvern.print.pde.features\nshown name:progress\n"
                         "choose name:printer Other\n"
                         "run until [ -z \"$(lpstat -o Slow)\" ]; do sleep 0.05; done\n"
                         "ready\npage com.halvern.print.pde.features\noffers tag:7 Photo Gloss A4\n");
    ASSERT_TRUE(program.waitForFinished(1000 * kPatience));
    EXPECT_EQ(program.exitCode(), 0) << program.readAllStandardError().constData();
}

TEST_F(LeavingDuringRefresh, PrintingDoesNotWaitForThePrintersAnswer)
{
    QProcess program;
    startDriver(program, "ready\npage com.halvern.print.pde.features\nshown name:progress\nprint\nclose\n");
    // The question would take hours.
    ASSERT_TRUE(program.waitForFinished(1000 * kPatience));
    EXPECT_EQ(program.exitCode(), 0) << program.readAllStandardError().constData();
    EXPECT_TRUE(waitUntil([this] { return activeJobs().isEmpty(); }));
    const QString said = QString::fromUtf8(program.readAllStandardOutput());
    const int job = said.section(q("job-id="), 1).section(u'\n', 0, 0).toInt();
    EXPECT_TRUE(QFile::exists(server.jobFile(job, q("page-1.png")))) << qPrintable(said);
}

} // namespace
} // namespace halvern
