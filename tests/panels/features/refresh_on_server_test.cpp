// SPDX-License-Identifier: MIT
#include "tests/panels/features/features_fixture.h"

#include "platform/foundation/notifications/distributed_notification_center.h"
#include "platform/foundation/threads/work_queue.h"
#include "platform/printing/jobs.h"

#include <QProgressBar>

#include <semaphore>

namespace halvern {
namespace {

using namespace features;

/// The panel as it ships, on a queue of a real server.
class RefreshOnServer : public testing::Test {
protected:
    void SetUp() override
    {
        useBuiltBundle();
        ASSERT_TRUE(server.isRunning()) << qPrintable(server.error());
    }

    void TearDown() override
    {
        letGo();
        // The next test has a bus of its own, and must not find this one's connection.
        server.stop();
        EXPECT_TRUE(waitUntil([] { return !DistributedNotificationCenter::defaultCenter().isConnected(); }));
        drainMainQueue();
    }

    void open(const QString& faults)
    {
        addQueue(q("Photo"), faults);
        panel = panelOn<RZFeaturesPDEHalvern>(q("Photo"), faults);
        ASSERT_TRUE(panel);
    }

    void addQueue(const QString& name, const QString& faults)
    {
        ASSERT_TRUE(loadPapers());
        ASSERT_TRUE(server.addQueue(name, QString(), uriOf(name, faults))) << qPrintable(server.error());
    }

    static QString uriOf(const QString& name, const QString& faults)
    {
        return q("halvern://virtual/") + name + faults;
    }

    // As another dialog would have it, with a host of its own.
    template <class P> std::shared_ptr<P> panelOn(const QString& queue, const QString& faults = QString())
    {
        const auto ownHost = std::make_shared<FakeHost>(featuresPpd());
        ownHost->printer = std::make_shared<Printer>(queue, uriOf(queue, faults));
        return makePanel<P>(ownHost);
    }

    // Changes what is loaded while the server runs; the printer reports it by a job of its own.
    void printerPapers(const QStringList& arguments)
    {
        ASSERT_TRUE(waitUntil([] { return DistributedNotificationCenter::defaultCenter().isConnected(); }));
        ChildProcess script;
        ASSERT_TRUE(script.start(q(HALVERN_TEST_SCRIPTS "/printer-papers"),
                                 QStringList{server.dir(), q("Photo")} + arguments,
                                 {{"HALVERN_PAPERS", HALVERN_PAPERS_TOOL}}));
        ASSERT_EQ(script.wait(), 0) << script.standardError().constData();
    }

    // Loads one cut sheet and one roll into the printer.
    bool loadPapers() const
    {
        QFile list(server.dir() + q("/papers/Photo.json"));
        const QByteArray papers = R"({"abilities": {"duplex": false, "extraFeatures": true}, "papers": [
            {"sheet": "Gloss A4", "resolutions": [300], "tones": [1]},
            {"roll": 152.4, "surfaces": [2], "resolutions": [610], "tones": [1]}]})";
        return list.open(QIODevice::WriteOnly) && list.write(papers) == papers.size() &&
               list.setPermissions(list.permissions() | QFileDevice::ReadOther);
    }

    jobs::JobList jobsOf(jobs::Which which) const { return jobs::Server().jobs(q("Photo"), which); }

    QByteArray commandFile(int job) const
    {
        QFile file(server.jobFile(job, q("command")));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QComboBox* names() const { return menuOf(*panel, kNameTag); }

    static QComboBox* menuOf(RZFeaturesPDEHalvern& shown, int tag)
    {
        return qobject_cast<QComboBox*>(shown.view_controlForTag(nullptr, tag));
    }

    // Whether the panel goes, with all that it had queued.
    bool letGo()
    {
        const std::weak_ptr<RZFeaturesPDEHalvern> weak = panel;
        panel.reset();
        return waitUntil([&] { return weak.expired(); });
    }

    PrivateCups server;
    QTemporaryDir folder;
    std::shared_ptr<RZFeaturesPDEHalvern> panel;
};

TEST_F(RefreshOnServer, TheJobsEndBringsThePapers)
{
    open(QString());
    ASSERT_TRUE(waitUntil([&] { return names() && names()->count() == 1; }));
    EXPECT_EQ(names()->itemText(0), q("Gloss A4"));
    EXPECT_TRUE(
        waitUntil([&] { return !panel->isWaitingOnPaper() && panel->progressIndicator()->isHidden(); }));
    const auto completed = jobsOf(jobs::Which::completed);
    ASSERT_EQ(completed.size(), 1);
    EXPECT_EQ(completed.front().state, jobs::kCompleted);
    EXPECT_EQ(commandFile(completed.front().id), "#CUPS-COMMAND\nReportStatus\nAutoConfigure\n");
    EXPECT_TRUE(waitUntil([&] { return panel->view_controlForTag(nullptr, kStatusTag)->isHidden(); }));
}

TEST_F(RefreshOnServer, NewsOfPapersReachesEveryOpenDialogAndOnlyChangesItsOwnPrinters)
{
    DistributedNotificationCenter& center = DistributedNotificationCenter::defaultCenter();
    int news = 0;
    center.addObserver(&news, q("VLXPrinterPaperDidUpdateNotification"), std::nullopt,
                       [&](const DistributedNotification&) { ++news; });
    ASSERT_TRUE(waitUntil([&] { return center.isConnected(); }));
    open(QString());
    ASSERT_TRUE(waitUntil([&] { return names() && names()->count() == 1 && news == 1; }));
    center.removeObserver(&news);
    addQueue(q("Other"), q("?slow=9999"));
    const auto second = panelOn<RZFeaturesPDEHalvern>(q("Photo"));
    const auto other = panelOn<RZFeaturesPDEHalvern>(q("Other"), q("?slow=9999"));
    ASSERT_TRUE(
        waitUntil([&] { return menuOf(*second, kWidthTag) && menuOf(*second, kWidthTag)->count() == 1; }));

    const LogCapture log;
    printerPapers({q("take-out"), q("rolls")});
    for (const auto& each : {panel, second}) {
        EXPECT_TRUE(waitUntil([&] { return menuOf(*each, kWidthTag)->count() == 0; }));
        EXPECT_EQ(menuOf(*each, kNameTag)->count(), 1);
    }
    const QString heard = q("entering -[RZFeaturesPDEHalvern newPaperDict:] for "
                            "VLXPrinterPaperDidUpdateNotification with object ") +
                          uriOf(q("Photo"), QString());
    // Twice by each of this printer's, once by the other's.
    EXPECT_TRUE(waitUntil([&] { return log.count(heard) == 5; }));
    ASSERT_TRUE(waitUntil([&] { return log.count(q("received new paper dictionary")) == 2; }));
    EXPECT_FALSE(other->unsortedPaper());
    EXPECT_TRUE(other->shouldHide());
    EXPECT_TRUE(waitUntil([] { return waitForWorkQueues(0); }));
}

/// The steps of a refresh, in order: each is reached on a background queue.
enum class Step { check, send, create, watch, reread };

/// The panel, with somebody who is called when it first reaches a step.
class SteppedPanel : public RZFeaturesPDEHalvern {
public:
    static inline std::function<void(Step)> reached;

    std::optional<QDateTime> lastUpdateDate() override
    {
        reached(Step::check);
        return RZFeaturesPDEHalvern::lastUpdateDate();
    }

    void sendPrinterCommands(const QStringList& commands) override
    {
        reached(Step::send);
        RZFeaturesPDEHalvern::sendPrinterCommands(commands);
    }

    // The last question before the job is created.
    int activeJobIDForDesinationName(const QString& destination) override
    {
        const int active = RZFeaturesPDEHalvern::activeJobIDForDesinationName(destination);
        reached(Step::create);
        return active;
    }

    void waitForJobCompletion(int jobID) override
    {
        reached(Step::watch);
        RZFeaturesPDEHalvern::waitForJobCompletion(jobID);
    }

    void ppdDidUpdate() override
    {
        reached(Step::reread);
        RZFeaturesPDEHalvern::ppdDidUpdate();
    }
};

class RefreshInterrupted : public RefreshOnServer, public testing::WithParamInterface<Step> {
protected:
    /// Opens a panel and does something on the main thread at the test's step; the step goes on after it.
    void interruptBy(const std::function<void()>& something)
    {
        const auto isDone = std::make_shared<std::atomic<bool>>(false);
        SteppedPanel::reached = [isDone, something](Step step) {
            if (step != GetParam() || isDone->exchange(true))
                return;
            std::binary_semaphore done(0);
            mainQueue().async([&] {
                something();
                done.release();
            });
            done.acquire();
        };
        addQueue(q("Photo"), QString());
        panel = panelOn<SteppedPanel>(q("Photo"));
        ASSERT_TRUE(panel);
        ASSERT_TRUE(waitUntil([&] { return isDone->load(); }));
        ASSERT_TRUE(waitUntil([] { return waitForWorkQueues(0); }));
        drainMainQueue();
    }

    void TearDown() override
    {
        RefreshOnServer::TearDown();
        SteppedPanel::reached = nullptr;
    }
};

TEST_P(RefreshInterrupted, ByAServerThatGoesItEnds)
{
    interruptBy([&] { ASSERT_TRUE(server.stop()); });
    EXPECT_TRUE(waitUntil([&] { return !panel->isWaitingOnPaper(); }));
    EXPECT_TRUE(waitUntil([&] { return panel->progressIndicator()->isHidden(); }));
}

TEST_P(RefreshInterrupted, ByHidingItLeavesNoJobAndShowingAgainBringsThePapers)
{
    interruptBy([&] { EXPECT_TRUE(panel->shouldHide()); });
    EXPECT_TRUE(jobsOf(jobs::Which::active).isEmpty());
    // Hidden before the check had found the data stale, the panel waits for a job that was never sent.
    EXPECT_TRUE(panel->shouldHide());
    drainMainQueue();
    panel->willShow();
    EXPECT_TRUE(waitUntil([&] { return names() && names()->count() == 1; }));
}

TEST_P(RefreshInterrupted, ByClosingItLeavesNoJobAndNoPanel)
{
    interruptBy([&] {
        panel->printWindowWillClose(false);
        panel.reset();
    });
    EXPECT_TRUE(jobsOf(jobs::Which::active).isEmpty());
    EXPECT_TRUE(letGo());
}

INSTANTIATE_TEST_SUITE_P(AtEachStep, RefreshInterrupted,
                         testing::Values(Step::check, Step::send, Step::create, Step::watch, Step::reread));

} // namespace
} // namespace halvern
