#include "tests/panels/features/features_fixture.h"

#include "platform/printing/jobs.h"
#include "tests/support/private_cups.h"

#include <QFile>
#include <QLabel>
#include <QProgressBar>

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
        drainMainQueue();
    }

    void open(const QString& faults)
    {
        const QString uri = QStringLiteral("halvern://virtual/Photo") + faults;
        ASSERT_TRUE(loadPapers());
        ASSERT_TRUE(server.addQueue(QStringLiteral("Photo"), QString(), uri)) << qPrintable(server.error());
        host = std::make_shared<FakeHost>(featuresPpd());
        host->printer = std::make_shared<Printer>(QStringLiteral("Photo"), uri);
        panel = makePanel<RZFeaturesPDEHalvern>(host);
        ASSERT_TRUE(panel);
    }

    // Loads one cut sheet and one roll into the printer.
    bool loadPapers() const
    {
        QFile list(server.dir() + QStringLiteral("/papers/Photo.json"));
        const QByteArray papers = R"({"abilities": {"duplex": false, "extraFeatures": true}, "papers": [
            {"sheet": "Gloss A4", "resolutions": [300], "tones": [1]},
            {"roll": 152.4, "surfaces": [2], "resolutions": [610], "tones": [1]}]})";
        return list.open(QIODevice::WriteOnly) && list.write(papers) == papers.size() &&
               list.setPermissions(list.permissions() | QFileDevice::ReadOther);
    }

    jobs::JobList jobsOf(jobs::Which which) const
    {
        return jobs::Server().jobs(QStringLiteral("Photo"), which);
    }

    QByteArray commandFile(int job) const
    {
        QFile file(server.jobFile(job, QStringLiteral("command")));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QComboBox* names() const
    {
        return qobject_cast<QComboBox*>(panel->view_controlForTag(nullptr, kNameTag));
    }

    bool isJobRunning() const
    {
        const auto active = jobsOf(jobs::Which::active);
        return active.size() == 1 && active.front().state == jobs::kProcessing;
    }

    // Whether the panel goes, with all that it had queued.
    bool letGo()
    {
        const std::weak_ptr<RZFeaturesPDEHalvern> weak = panel;
        panel.reset();
        host.reset();
        return waitUntil([&] { return weak.expired(); });
    }

    PrivateCups server;
    QTemporaryDir folder;
    std::shared_ptr<FakeHost> host;
    std::shared_ptr<RZFeaturesPDEHalvern> panel;
};

TEST_F(RefreshOnServer, TheJobsEndBringsThePapers)
{
    open(QString());
    ASSERT_TRUE(waitUntil([&] { return names() && names()->count() == 1; }));
    EXPECT_EQ(names()->itemText(0), QStringLiteral("Gloss A4"));
    EXPECT_TRUE(
        waitUntil([&] { return !panel->isWaitingOnPaper() && panel->progressIndicator()->isHidden(); }));
    const auto completed = jobsOf(jobs::Which::completed);
    ASSERT_EQ(completed.size(), 1);
    EXPECT_EQ(completed.front().state, jobs::kCompleted);
    EXPECT_EQ(commandFile(completed.front().id), "#CUPS-COMMAND\nReportStatus\nAutoConfigure\n");
    EXPECT_TRUE(waitUntil([&] { return panel->view_controlForTag(nullptr, kStatusTag)->isHidden(); }));
}

TEST_F(RefreshOnServer, HidingThePanelCancelsTheJob)
{
    open(QStringLiteral("?slow=60"));
    ASSERT_TRUE(waitUntil([&] { return isJobRunning(); }));
    EXPECT_TRUE(panel->isWaitingOnPaper());
    EXPECT_TRUE(panel->shouldHide());
    EXPECT_TRUE(waitUntil([&] { return jobsOf(jobs::Which::active).isEmpty(); }));
    EXPECT_TRUE(waitUntil([&] { return !panel->isWaitingOnPaper(); }));
    EXPECT_TRUE(letGo());
}

TEST_F(RefreshOnServer, APanelThatGoesDuringTheJobLeavesNoneBehind)
{
    open(QStringLiteral("?slow=60"));
    ASSERT_TRUE(waitUntil([&] { return isJobRunning(); }));
    panel->printWindowWillClose(true);
    EXPECT_TRUE(letGo());
    EXPECT_TRUE(waitUntil([&] { return jobsOf(jobs::Which::active).isEmpty(); }));
}

TEST_F(RefreshOnServer, AServerThatGoesDuringTheJobEndsTheWaiting)
{
    open(QStringLiteral("?slow=60"));
    ASSERT_TRUE(waitUntil([&] { return isJobRunning(); }));
    ASSERT_TRUE(server.stop());
    EXPECT_TRUE(waitUntil([&] { return !panel->isWaitingOnPaper(); }));
    EXPECT_FALSE(panel->view_controlForTag(nullptr, kStatusTag)->isHidden());
}

} // namespace

} // namespace halvern
