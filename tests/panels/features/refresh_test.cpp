// SPDX-License-Identifier: MIT
#include "tests/panels/features/features_fixture.h"

#include "platform/foundation/notifications/distributed_notification_center.h"
#include "platform/foundation/notifications/notification_center.h"
#include "platform/foundation/threads/run_loop_timer.h"
#include "platform/maker/refresh_date.h"
#include "printer/papers/catalogue_archive.h"

#include <QProgressBar>

#include <thread>

namespace halvern {
namespace {

using namespace features;

QDateTime since2001(double seconds)
{
    return dateOfTimeStamp(QString::number(seconds, 'f', 3));
}

QByteArray stampOfAge(int seconds)
{
    const double now = double(since2001(0).msecsTo(QDateTime::currentDateTimeUtc())) / 1000.0;
    return QByteArray::number(now - seconds, 'f', 3);
}

QByteArray archiveOf(const QStringList& names)
{
    QList<QVariantMap> records;
    for (const QString& name : names)
        records.append(sheetRecord(name, 300));
    return archiveOfCatalogue(catalogueOf(records));
}

const QString kRecovered = q("PDE recovered %1 Tessarin Papers");

TEST(RefreshDate, DataAreStaleOnlyBeyondTwoMinutes)
{
    const QDateTime now = since2001(1e9);
    EXPECT_FALSE(isRefreshStale(now.addMSecs(-120000), now));
    EXPECT_TRUE(isRefreshStale(now.addMSecs(-120500), now));
    EXPECT_FALSE(isRefreshStale(now.addSecs(3600), now));
    EXPECT_TRUE(isRefreshStale(std::nullopt, now));
}

TEST(RefreshDate, ShowsTheTimeOfADayAndThenTheDay)
{
    QLocale::setDefault(QLocale(q("en_US")));
    const QDateTime now(QDate(2024, 3, 10), QTime(13, 5));
    EXPECT_EQ(refreshDateText(now.addSecs(-23 * 3600), now), q("2:05 PM"));
    EXPECT_EQ(refreshDateText(now.addDays(-1), now), q("1:05 PM"));
    EXPECT_EQ(refreshDateText(now.addSecs(-25 * 3600), now), q("2024/03/09"));
    EXPECT_EQ(refreshDateText(now.addSecs(3600), now), q("2:05 PM"));
    EXPECT_FALSE(refreshDateText(std::nullopt, now));
}

TEST(RefreshDate, ReadsStampsThatNoPrinterShouldWrite)
{
    EXPECT_EQ(dateOfTimeStamp(q("86400.5 s")), since2001(86400.5));
    EXPECT_EQ(dateOfTimeStamp(q("soon")), since2001(0));
    EXPECT_TRUE(dateOfTimeStamp(q("-1e300")).isValid());
    EXPECT_TRUE(dateOfTimeStamp(q("1e999")).isValid());
}

TEST(RunLoopTimer, RepeatsUntilAnyThreadLetsItGo)
{
    int fired = 0;
    auto timer = RunLoopTimer::scheduled(1, [&] { ++fired; });
    timer->fire();
    EXPECT_EQ(fired, 1);
    EXPECT_TRUE(waitUntil([&] { return fired >= 3; }));
    std::thread([&] { timer->invalidate(); }).join();
    const int last = fired;
    timer->fire();
    drainMainQueue();
    EXPECT_EQ(fired, last);
    EXPECT_FALSE(timer->isValid());
}

class Refresh : public FeaturesPanelTest {
protected:
    void makeAndCheck()
    {
        make();
        waitForStatus();
    }

    // The first step of every check is to word the status line.
    void waitForStatus()
    {
        ASSERT_TRUE(waitUntil([&] { return control(kStatusTag) && !status().isEmpty(); }));
    }

    QString status() const { return qobject_cast<QLabel*>(control(kStatusTag))->text(); }

    bool isStatusShown() const { return !control(kStatusTag)->isHidden(); }

    bool isTurning() const
    {
        QProgressBar* indicator = panel->progressIndicator();
        return !indicator->isHidden() && indicator->maximum() == 0;
    }

    bool waitForJobs(int count)
    {
        return waitUntil([&] { return TestPrinter::taken().size() == count && isTurning(); });
    }

    // The job's end is reported on a background queue.
    void complete()
    {
        std::thread([&] { panel->ppdDidUpdate(); }).join();
        ASSERT_TRUE(waitUntil([&] { return !panel->isWaitingOnPaper() && !isTurning(); }));
        drainMainQueue();
    }
};

TEST_F(Refresh, AsksAPrinterThatHasNeverReported)
{
    makeAndCheck();
    EXPECT_EQ(status(), q("Last updated never"));
    ASSERT_TRUE(waitForJobs(1));
    EXPECT_EQ(TestPrinter::taken().first(), q("ReportStatus,AutoConfigure"));
    EXPECT_TRUE(isStatusShown());
    EXPECT_TRUE(panel->isWaitingOnPaper());
}

TEST_F(Refresh, ShowsWhatAPrinterReportedAMinuteAgoWithoutAsking)
{
    TestPrinter::say("VLXTimeStamp", stampOfAge(60));
    TestPrinter::load(archiveOf({q("Gloss"), q("Matte")}));
    makeAndCheck();
    ASSERT_TRUE(waitUntil([&] { return menu(kNameTag)->count() == 2; }));
    EXPECT_TRUE(status().startsWith(q("Last updated ")));
    EXPECT_TRUE(TestPrinter::taken().isEmpty());
    EXPECT_FALSE(isTurning());
    EXPECT_FALSE(isStatusShown());
}

TEST_F(Refresh, ShowsTheOldPapersFirstAndTheNewOnesWhenTheJobEnds)
{
    TestPrinter::say("VLXTimeStamp", stampOfAge(600));
    TestPrinter::load(archiveOf({q("Old")}));
    makeAndCheck();
    ASSERT_TRUE(waitForJobs(1));
    ASSERT_TRUE(waitUntil([&] { return titles(kNameTag) == QStringList{q("Old")}; }));
    TestPrinter::load(archiveOf({q("New")}));
    complete();
    EXPECT_EQ(titles(kNameTag), QStringList{q("New")});
    EXPECT_FALSE(isStatusShown());
    // No further check until the panel is shown again.
    panel->shouldHide();
    panel->willShow();
    EXPECT_TRUE(waitForJobs(2));
}

TEST_F(Refresh, WaitsForAJobThatWasNeverSentUntilThePanelIsHidden)
{
    makeAndCheck();
    ASSERT_TRUE(waitForJobs(1));
    panel->waitForUpdatePPD();
    panel->willShow();
    drainMainQueue();
    EXPECT_EQ(TestPrinter::taken().size(), 1);
    EXPECT_TRUE(panel->shouldHide());
    EXPECT_TRUE(panel->isUnloading());
    ASSERT_TRUE(waitUntil([&] { return !panel->isWaitingOnPaper(); }));
    EXPECT_FALSE(isTurning());
    panel->willShow();
    EXPECT_FALSE(panel->isUnloading());
    EXPECT_TRUE(waitForJobs(2));
}

TEST_F(Refresh, KeepsTheCatalogueWhenTheNewOneIsCorruptOrEmptyOrTheSame)
{
    TestPrinter::say("VLXTimeStamp", stampOfAge(60));
    TestPrinter::load(archiveOf({q("Kept")}));
    makeAndCheck();
    ASSERT_TRUE(waitUntil([&] { return menu(kNameTag)->count() == 1; }));
    const auto held = panel->unsortedPaper();
    const LogCapture log;
    for (const QByteArray& bytes : {archiveOf({}), QByteArray("bplist00 and then rubbish"), QByteArray()}) {
        TestPrinter::load(bytes);
        panel->updatePaperDict();
    }
    EXPECT_EQ(log.count(kRecovered.arg(0)), 3);
    TestPrinter::load(archiveOf({q("Kept")}));
    panel->newPaperDict({q("VLXPrinterPaperDidUpdateNotification"), std::nullopt});
    ASSERT_TRUE(waitForWorkQueues(1000 * kPatience));
    drainMainQueue();
    EXPECT_EQ(panel->unsortedPaper(), held);
    EXPECT_EQ(log.count(q("received new paper dictionary")), 0);
    EXPECT_EQ(log.count(q("entering -[RZFeaturesPDEHalvern newPaperDict:] for "
                          "VLXPrinterPaperDidUpdateNotification with object (null)")),
              1);
}

TEST_F(Refresh, ReadsNewsOfPapersOffTheMainThread)
{
    make();
    ASSERT_TRUE(waitForWorkQueues(1000 * kPatience));
    TestPrinter::load(archiveOf({q("Gloss")}));
    TestPrinter::hold();
    // On the main thread, nothing would be held.
    panel->newPaperDict({q("VLXPrinterPaperDidUpdateNotification"), std::nullopt});
    EXPECT_TRUE(waitUntil([] { return TestPrinter::isSomebodyHeld(); }));
    EXPECT_FALSE(panel->unsortedPaper());
    TestPrinter::goOn();
    EXPECT_TRUE(waitUntil([&] { return panel->unsortedPaper() != nullptr; }));
}

TEST_F(Refresh, AReadThatIsLateDoesNotReplaceALaterOne)
{
    make();
    ASSERT_TRUE(waitForWorkQueues(1000 * kPatience));
    TestPrinter::load(archiveOf({q("Old")}));
    TestPrinter::hold();
    panel->newPaperDict({q("VLXPrinterPaperDidUpdateNotification"), std::nullopt});
    ASSERT_TRUE(waitUntil([] { return TestPrinter::isSomebodyHeld(); }));
    TestPrinter::load(archiveOf({q("New")}));
    panel->updatePaperDict();
    const auto newest = panel->unsortedPaper();
    ASSERT_TRUE(newest);
    TestPrinter::goOn();
    ASSERT_TRUE(waitForWorkQueues(1000 * kPatience));
    EXPECT_EQ(panel->unsortedPaper(), newest);
}

TEST_F(Refresh, StopsWhenThePlugInUnloads)
{
    makeAndCheck();
    ASSERT_TRUE(waitForJobs(1));
    const LogCapture log;
    int other = 0;
    NotificationCenter::defaultCenter().post(q("com.halvern.vlx.PDEPluginIsUnloading"), &other);
    EXPECT_TRUE(panel->isUnloading());
    EXPECT_EQ(log.count(q("got notification to unload ")), 1);
    NotificationCenter::defaultCenter().post(q("com.halvern.vlx.PDEPluginIsUnloading"), host.get());
    EXPECT_EQ(log.count(q("got notification to unload ")), 3);
    EXPECT_TRUE(waitUntil([&] { return !panel->isWaitingOnPaper() && !isTurning(); }));
}

} // namespace
} // namespace halvern
