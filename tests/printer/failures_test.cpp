// SPDX-License-Identifier: MIT
#include "tests/printer/print_job.h"

#include <cups/cups.h>

namespace halvern {
namespace {

/// Each test sets up queues of its own, with faults.
class FailuresTest : public ServerTest {
protected:
    int printPages(const char* queue, int pages) const
    {
        const QString file = documents.filePath(q("%1.pdf").arg(pages));
        return printFile(queue, makePdf(file, pages), "application/pdf");
    }

    QStringList files(int job) const
    {
        QStringList names = QDir(server->jobFile(job, QString())).entryList(QDir::Files, QDir::Name);
        names.removeOne(q("log.txt"));
        return names;
    }

    static bool hasReason(const char* queue, const char* reason)
    {
        return queueState(queue).reasons.contains(QLatin1String(reason));
    }

    QTemporaryDir documents;
};

TEST_F(FailuresTest, AnOfflinePrinterKeepsTheJobUntilItIsCancelled)
{
    addQueue("Offline", "offline");
    const int job = printPages("Offline", 1);
    ASSERT_TRUE(waitUntil([] { return hasReason("Offline", "offline-report"); }));
    EXPECT_EQ(jobState(job), IPP_JSTATE_PROCESSING);
    EXPECT_TRUE(waitUntil([] { return queueState("Offline").message == q("The printer is offline."); }));
    EXPECT_EQ(cupsCancelJob2(CUPS_HTTP_DEFAULT, "Offline", job, 0), IPP_STATUS_OK);
    EXPECT_TRUE(reaches(job, IPP_JSTATE_CANCELED));
    EXPECT_TRUE(waitUntil([] { return !hasReason("Offline", "offline-report"); }));
    EXPECT_EQ(files(job), QStringList());

    addQueue("Offline", "offline=0.3");
    EXPECT_TRUE(reaches(printPages("Offline", 1), IPP_JSTATE_COMPLETED));
    EXPECT_FALSE(hasReason("Offline", "offline-report"));
}

TEST_F(FailuresTest, ASlowPrinterReportsProgressAndStopsWhenCancelled)
{
    addQueue("Slow", "slow=9999");
    const int job = printPages("Slow", 1);
    ASSERT_TRUE(waitUntil([] { return queueState("Slow").message == q("Printing page 1."); }));
    EXPECT_EQ(jobState(job), IPP_JSTATE_PROCESSING);
    ASSERT_TRUE(waitUntil([this, job] { return files(job).contains(q("page-1.png.part")); }));
    EXPECT_EQ(cupsCancelJob2(CUPS_HTTP_DEFAULT, "Slow", job, 0), IPP_STATUS_OK);
    EXPECT_TRUE(reaches(job, IPP_JSTATE_CANCELED));
    EXPECT_TRUE(waitUntil([this, job] { return files(job) == QStringList{q("options.txt")}; }));
}

TEST_F(FailuresTest, AStoppedPrinterKeepsTheWholePagesAndPrintsAgainWhenRestarted)
{
    addQueue("Stop", "stop=1&reason=cover-open");
    const int job = printPages("Stop", 3);
    ASSERT_TRUE(waitUntil([] { return queueState("Stop").state == IPP_PSTATE_STOPPED; }));
    EXPECT_TRUE(hasReason("Stop", "cover-open"));
    EXPECT_THAT(queueState("Stop").message.toStdString(), testing::StartsWith("The printer has stopped"));
    EXPECT_EQ(jobState(job), IPP_JSTATE_PENDING);
    EXPECT_EQ(files(job), (QStringList{q("options.txt"), q("page-1.png")}));

    addQueue("Stop", "reason=cover-open");
    EXPECT_TRUE(reaches(job, IPP_JSTATE_COMPLETED));
    EXPECT_FALSE(hasReason("Stop", "cover-open"));
    EXPECT_EQ(files(job).size(), 4);
}

} // namespace
} // namespace halvern
