#include "tests/panels/features/features_fixture.h"

#include "platform/printing/jobs.h"
#include "printer/papers/catalogue_archive.h"
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
        ASSERT_TRUE(server.addQueue(QStringLiteral("Photo"), ppdWithPapers(), uri))
            << qPrintable(server.error());
        host = std::make_shared<FakeHost>(featuresPpd());
        host->printer = std::make_shared<Printer>(QStringLiteral("Photo"), uri);
        panel = makePanel<RZFeaturesPDEHalvern>(host);
        ASSERT_TRUE(panel);
    }

    // The printer's description with a catalogue in it that has never been dated.
    QString ppdWithPapers() const
    {
        QFile plain(QStringLiteral(HALVERN_TEST_SCRIPTS "/../printer/tessarin.ppd"));
        EXPECT_TRUE(plain.open(QIODevice::ReadOnly));
        const QByteArray archive = archiveOfCatalogue(
            catalogueOf({sheetRecord(QStringLiteral("Gloss A4"), 300), rollRecord(1524, 2, 610)}));
        const QByteArray text = archive.toBase64();
        QByteArray lines;
        for (qsizetype at = 0, piece = 0; at < text.size(); at += 200, ++piece)
            lines += "*VLXPapersKnown" + QByteArray::number(piece, 16).rightJustified(5, '0') + ": \"" +
                     text.mid(at, 200) + "\"\n";
        const QString path = folder.filePath(QStringLiteral("photo.ppd"));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(plain.readAll() + lines);
        return path;
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
