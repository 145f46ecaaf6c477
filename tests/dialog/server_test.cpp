// The dialog's model and window on a real print server with virtual printers.
#include "dialog/batch_print.h"
#include "dialog/job_submitter.h"
#include "dialog/message_bar.h"
#include "dialog/panel_deck.h"
#include "platform/printing/printer.h"
#include "tests/dialog/dialog_support.h"
#include "tests/support/observers.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QElapsedTimer>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

namespace halvern {

namespace {

QString t(const char* text)
{
    return QString::fromUtf8(text);
}

bool containsText(const QString& text, const char* words)
{
    return text.contains(t(words));
}

} // namespace

class DialogServerTest : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        server = std::make_unique<PrivateCups>();
        ASSERT_TRUE(server->isRunning()) << qPrintable(server->error());
        ASSERT_TRUE(
            server->addQueue(t("Tessarin"), {}, {}, {t("--default"), t("--info"), t("Photo printer")}));
        ASSERT_TRUE(server->addQueue(t("Other")));
        ASSERT_TRUE(server->addQueue(t("Paused"), {}, {}, {t("--disabled")}));
        ASSERT_TRUE(server->addQueue(t("Rejecting"), {}, {}, {t("--rejecting")}));
        ASSERT_TRUE(server->addQueue(t("Jam"), {}, t("halvern://virtual/Jam?stop=0")));
        QImage photo(600, 400, QImage::Format_RGB32);
        photo.fill(QColor(40, 90, 160));
        ASSERT_TRUE(photo.save(photoPath()));
    }

    static void TearDownTestSuite() { server.reset(); }

    static QString photoPath() { return folder.filePath(t("photo.jpg")); }

    static SessionRequest request(const QString& printer, const OptionValues& options = {})
    {
        return {printer, options, {photoPath()}, 1};
    }

    static bool isReady(DialogSession& session)
    {
        session.start();
        return waitUntil([&] { return session.canPrint() && session.printerList().hasAnswer(); });
    }

    // Prints and runs until the job has ended or rests.
    static JobStage runJob(PrintRun& run, QString* sentence)
    {
        JobStage stage = JobStage::unknown;
        bool isOver = false;
        QObject watcher;
        QObject::connect(&run, &PrintRun::followed, &watcher,
                         [&](const JobStatus& status, const QString& words) {
                             stage = status.stage;
                             *sentence = words;
                             isOver = isResting(stage);
                         });
        QObject::connect(&run, &PrintRun::finished, &watcher, [&](const PrintOutcome& outcome) {
            stage = outcome.stage;
            *sentence = outcome.sentence;
            isOver = true;
        });
        run.start();
        EXPECT_TRUE(waitUntil([&] { return isOver; }, 60)) << qPrintable(*sentence);
        return stage;
    }

    static pid_t serverProcess()
    {
        QFile file(server->dir() + t("/server/cupsd.pid"));
        return file.open(QIODevice::ReadOnly) ? pid_t(file.readAll().split(' ').first().toInt()) : 0;
    }

    inline static std::unique_ptr<PrivateCups> server;
    inline static QTemporaryDir folder;
    FakePanels panels;
};

TEST_F(DialogServerTest, ListsQueuesWithTheirStatesAndSelectsTheDefault)
{
    DialogSession session(request({}), panels);
    ASSERT_TRUE(isReady(session));
    EXPECT_EQ(session.printerName(), t("Tessarin"));
    const PrinterList& list = session.printerList();
    ASSERT_EQ(list.printers().size(), 5u);
    EXPECT_EQ(list.find(t("Tessarin"))->info, t("Photo printer"));
    EXPECT_TRUE(containsText(stateText(*list.find(t("Paused"))), "Paused"));
    EXPECT_TRUE(containsText(stateText(*list.find(t("Rejecting"))), "not accept"));
}

TEST_F(DialogServerTest, EveryChosenValueArrivesAtThePrinterAsItWasChosen)
{
    const QString line = QString(119, QChar(0x2264)) + t("\"\\ {");
    DialogSession session(request(t("Tessarin"), {{t("SharpnessIntensity"), t("1.24")},
                                                  {t("PaperTone"), t("Warm")},
                                                  {t("CVP2"), t("true")},
                                                  {t("Unknown"), t("{a b}")}}),
                          panels);
    ASSERT_TRUE(isReady(session));
    panels.first.lock()->savedText = line;
    PrintRun* run = session.makeRun();
    QString sentence;
    ASSERT_EQ(runJob(*run, &sentence), JobStage::completed) << qPrintable(sentence);
    const auto received = server->receivedOptions(run->jobId());
    ASSERT_TRUE(received);
    const std::map<QString, QString> wanted{{t("SharpnessIntensity"), t("1.24")},
                                            {t("PaperTone"), t("Warm")},
                                            {t("CVP1"), line},
                                            {t("CVP2"), t("true")},
                                            {t("Unknown"), t("{a b}")},
                                            {t("PageSize"), t("4x6")}};
    for (const auto& [key, value] : wanted) {
        ASSERT_TRUE(received->contains(key)) << qPrintable(key);
        EXPECT_EQ(received->at(key), value) << qPrintable(key);
    }
    EXPECT_EQ(QImage(server->jobFile(run->jobId(), t("page-1.png"))).size(), QSize(1200, 1800));
}

TEST_F(DialogServerTest, SaysWhyAJobDoesNotPrintAndCancelsIt)
{
    struct Case {
        const char* queue;
        OptionValues options;
        JobStage stage;
        const char* words;
    };

    const Case cases[] = {
        {"Tessarin", {{t("job-hold-until"), t("indefinite")}}, JobStage::held, "is held"},
        {"Paused", {}, JobStage::blocked, "paused"},
        {"Jam", {}, JobStage::stopped, "paper jam"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.queue);
        DialogSession session(request(t(c.queue), c.options), panels);
        ASSERT_TRUE(isReady(session));
        PrintRun* run = session.makeRun();
        QString sentence;
        const JobStage stage = runJob(*run, &sentence);
        // A queue that stops lets its job wait, or stops it: the user reads the same reason.
        EXPECT_TRUE(stage == c.stage || (c.stage == JobStage::stopped && stage == JobStage::blocked))
            << qPrintable(sentence);
        EXPECT_TRUE(containsText(sentence, c.words)) << qPrintable(sentence);
        QObject::connect(run, &PrintRun::finished, run,
                         [&](const PrintOutcome& outcome) { sentence = outcome.sentence; });
        run->cancel();
        EXPECT_TRUE(waitUntil([&] { return run->isOver(); }));
        EXPECT_TRUE(containsText(sentence, "was cancelled")) << qPrintable(sentence);
    }
}

TEST_F(DialogServerTest, ARefusedJobLeavesNothingOnTheServer)
{
    DialogSession session(request(t("Rejecting")), panels);
    ASSERT_TRUE(isReady(session));
    PrintRun* run = session.makeRun();
    QString sentence;
    runJob(*run, &sentence);
    EXPECT_TRUE(containsText(sentence, "does not accept jobs")) << qPrintable(sentence);
    EXPECT_EQ(run->jobId(), 0);
    const SubmitResult unsent =
        submitJob({t("Tessarin"), t("x"), t("/nowhere.pdf"), {}}, cups::makeCancelFlag(), [](double) {});
    EXPECT_EQ(unsent.jobId, 0);
    EXPECT_FALSE(unsent.problem.isEmpty());
}

TEST_F(DialogServerTest, PanelsAreCreatedShownHiddenAndReleasedByTheProtocol)
{
    DialogSession session(request(t("Tessarin")), panels);
    auto dialog = std::make_unique<PrintDialog>(session);
    dialog->show();
    ASSERT_TRUE(isReady(session));
    EXPECT_EQ(panels.calls, (QStringList{t("first: restore"), t("second: restore")}))
        << "no view is loaded yet";
    ASSERT_TRUE(dialog->deck().showPage(t("second")));
    EXPECT_EQ(panels.calls.mid(2), (QStringList{t("second: view"), t("second: willShow")}));
    EXPECT_TRUE(panels.second.lock()->view->isVisible());
    dialog->deck().showPage(t("summary"));
    EXPECT_EQ(panels.calls.mid(4), QStringList{t("second: shouldHide")});
    EXPECT_FALSE(panels.second.lock()->view->isVisible());
    dialog->deck().showPage(t("first"));
    panels.calls.clear();
    const std::shared_ptr<HostCallback> oldHost = panels.first.lock()->host;
    ASSERT_TRUE(oldHost->ppdFile() && oldHost->pmPrinter()->id() == t("Tessarin"));
    ppd_file_t* oldPpd = oldHost->ppdFile();
    session.selectPrinter(t("Other"));
    EXPECT_EQ(ppd::defaultChoice(oldPpd, t("PaperFeed")), t("Sheet"))
        << "a panel's queued work may still read it";
    EXPECT_EQ(panels.calls.value(0), t("first: shouldHide"));
    EXPECT_TRUE(panels.calls.contains(t("first: gone")) && panels.calls.contains(t("second: gone")));
    EXPECT_FALSE(oldHost->ppdFile() || oldHost->pmPrinter() || oldHost->printSettings() ||
                 oldHost->pageFormat());
    EXPECT_FALSE(oldHost->willChangePPDOptionKeyValue_ppdChoice(t("PaperTone"), t("Warm")));
    ASSERT_TRUE(waitUntil([&] { return session.canPrint(); }));
    EXPECT_EQ(panels.first.lock()->host->pmPrinter()->id(), t("Other"));
    EXPECT_TRUE(panels.first.lock()->host->pmPrinter()->copyDeviceURI());
    panels.calls.clear();
    dialog->close();
    EXPECT_EQ(panels.calls.count(t("first: closing")), 1);
    EXPECT_EQ(panels.calls.count(t("second: closing")), 1);
}

TEST_F(DialogServerTest, AResolvedConflictIsShownToldToPanelsAndUndone)
{
    DialogSession session(request(t("Tessarin"), {{t("TwoSided"), t("LongEdge")}}), panels);
    PrintDialog dialog(session);
    dialog.show();
    ASSERT_TRUE(isReady(session));
    auto* message = dialog.findChild<MessageBar*>();
    const std::shared_ptr<RecordingPanel> panel = panels.first.lock();
    EXPECT_TRUE(panel->host->willChangePPDOptionKeyValue_ppdChoice(t("PaperFeed"), t("Roll")));
    EXPECT_TRUE(panel->changes.isEmpty()) << "not while the panel still waits for the answer";
    EXPECT_TRUE(containsText(message->text(), "Two-Sided: Off")) << qPrintable(message->text());
    ASSERT_TRUE(waitUntil([&] { return panel->changes.contains(t("TwoSided=None")); }));
    QTest::mouseClick(dialog.findChild<QPushButton*>(t("messageAction")), Qt::LeftButton);
    EXPECT_EQ(session.model()->value(t("TwoSided")), t("LongEdge"));
    EXPECT_EQ(session.model()->value(t("PaperFeed")), t("Sheet"));
    EXPECT_FALSE(panel->host->willChangePPDOptionKeyValue_ppdChoice(t("SharpnessIntensity"), t("9")));
    EXPECT_TRUE(containsText(message->text(), "Intensity")) << qPrintable(message->text());
}

TEST_F(DialogServerTest, KeptValuesAreInThePrintSettingsUntilAListedOneReplacesThem)
{
    DialogSession session(request(t("Tessarin")), panels);
    ASSERT_TRUE(isReady(session));
    const std::shared_ptr<HostCallback> host = panels.first.lock()->host;
    QVariant held;
    ASSERT_TRUE(host->willChangePPDOptionKeyValue_ppdChoice(t("SharpnessIntensity"), t("1.24")));
    EXPECT_EQ(host->printSettings()->getValue(t("SharpnessIntensity"), held), kPrintingOk);
    EXPECT_EQ(held, QVariant(t("1.24")));
    ASSERT_TRUE(host->willChangePPDOptionKeyValue_ppdChoice(t("SharpnessIntensity"), t("1.50")));
    EXPECT_EQ(host->printSettings()->getValue(t("SharpnessIntensity"), held), kPrintingKeyNotFound);
}

TEST_F(DialogServerTest, ThePageControlsChangeThePreviewAndTheJob)
{
    DialogSession session(request(t("Tessarin")), panels);
    PrintDialog dialog(session);
    dialog.show();
    ASSERT_TRUE(isReady(session));
    auto* paper = dialog.findChild<QComboBox*>(t("paperSize"));
    paper->showPopup();
    paper->view()->setCurrentIndex(paper->model()->index(paper->findData(t("A4")), 0));
    QTest::keyClick(paper->view(), Qt::Key_Return);
    EXPECT_EQ(session.model()->value(t("PageSize")), t("A4"));
    auto* fill = dialog.findChild<QRadioButton*>(t("scaling1"));
    QTest::mouseClick(fill, Qt::LeftButton, {}, QPoint(8, fill->height() / 2));
    const PageLayout layout = session.layoutFor(session.photos().front());
    EXPECT_TRUE(layout.isCut && layout.turned);
    EXPECT_NEAR(layout.page.width(), 841.89, 0.01);
}

TEST_F(DialogServerTest, PrintsFromTheWindowAndSaysSo)
{
    DialogSession session(request(t("Tessarin")), panels);
    PrintDialog dialog(session);
    dialog.show();
    auto* print = dialog.findChild<QPushButton*>(t("printButton"));
    EXPECT_FALSE(print->isEnabled()) << "there is nothing to print yet";
    ASSERT_TRUE(isReady(session));
    dialog.deck().showPage(t("first"));
    panels.calls.clear();
    QTest::mouseClick(print, Qt::LeftButton);
    EXPECT_EQ(panels.calls, (QStringList{t("first: save"), t("second: save"), t("first: shouldHide"),
                                         t("second: shouldHide")}));
    ASSERT_TRUE(waitUntil([&] { return dialog.run() && dialog.run()->isOver(); }, 60));
    EXPECT_TRUE(dialog.outcome().printed) << qPrintable(dialog.outcome().sentence);
    EXPECT_TRUE(containsText(dialog.findChild<QLabel*>(t("status"))->text(), "Printed"));
    EXPECT_EQ(panels.calls.mid(4), QStringList{t("first: willShow")}) << "the panel is in use again";
    dialog.close();
    EXPECT_TRUE(panels.calls.contains(t("first: closing to print")));
}

TEST_F(DialogServerTest, AStoppedServerNeverHoldsTheWindowUp)
{
    const pid_t process = serverProcess();
    ASSERT_GT(process, 1);
    ASSERT_EQ(kill(process, SIGSTOP), 0);
    {
        DialogSession session(request({}), panels);
        PrintDialog dialog(session);
        dialog.show();
        session.start();
        EXPECT_TRUE(waitUntil([&] { return session.hasPhotos(); }));
        session.selectPrinter(t("Other"));
        qint64 longest = 0;
        QElapsedTimer beat;
        beat.start();
        QTimer heart;
        int beats = 0;
        QObject::connect(&heart, &QTimer::timeout, &heart, [&] {
            longest = std::max(longest, beat.restart());
            ++beats;
        });
        heart.start(10);
        EXPECT_TRUE(waitUntil([&] { return beats > 50; }));
        EXPECT_LT(longest, 3000) << "a wait for the server would take until its patience ends";
        QTest::keyClick(&dialog, Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible());
    }
    EXPECT_EQ(kill(process, SIGCONT), 0);
    DialogSession after(request(t("Tessarin")), panels);
    EXPECT_TRUE(isReady(after));
}

TEST_F(DialogServerTest, ADamagedDescriptionIsNamedAndTheWindowLives)
{
    ASSERT_TRUE(server->addQueue(t("Damaged")));
    QFile ppd(server->dir() + t("/server/etc/ppd/Damaged.ppd"));
    ASSERT_TRUE(ppd.open(QIODevice::WriteOnly | QIODevice::Truncate));
    ppd.write("*PPD-Adobe: \"4.3\"\n*OpenUI *X: PickOne\n*X " + QByteArray(400, 'x') + ": \"\"\n");
    ppd.close();
    DialogSession session(request(t("Damaged")), panels);
    PrintDialog dialog(session);
    dialog.show();
    session.start();
    auto* message = dialog.findChild<MessageBar*>();
    ASSERT_TRUE(waitUntil([&] { return containsText(message->text(), "Damaged"); }))
        << qPrintable(message->text());
    EXPECT_FALSE(dialog.findChild<QPushButton*>(t("printButton"))->isEnabled());
    session.selectPrinter(t("Tessarin"));
    EXPECT_TRUE(waitUntil([&] { return session.canPrint(); }));
}

TEST_F(DialogServerTest, APlugInThatFailsIsANoticeAndNoObstacle)
{
    panels.failure = t("The pages are broken.");
    DialogSession session(request(t("Tessarin")), panels);
    PrintDialog dialog(session);
    dialog.show();
    ASSERT_TRUE(isReady(session));
    EXPECT_EQ(dialog.findChild<MessageBar*>()->text(), panels.failure);
    EXPECT_TRUE(session.canPrint());
}

TEST_F(DialogServerTest, TwoDialogsAtOnceKeepTheirOwnChoices)
{
    FakePanels otherPanels;
    DialogSession one(request(t("Tessarin")), panels);
    DialogSession two(request(t("Tessarin")), otherPanels);
    PrintDialog first(one);
    PrintDialog second(two);
    first.show();
    second.show();
    ASSERT_TRUE(isReady(one) && isReady(two));
    ASSERT_TRUE(one.changeOption(t("PaperTone"), t("Warm")));
    EXPECT_EQ(two.model()->value(t("PaperTone")), t("Standard"));
    PrintRun* runOne = one.makeRun();
    PrintRun* runTwo = two.makeRun();
    runOne->start();
    QString sentence;
    EXPECT_EQ(runJob(*runTwo, &sentence), JobStage::completed) << qPrintable(sentence);
    EXPECT_TRUE(waitUntil([&] { return runOne->isOver(); }));
    EXPECT_EQ(server->receivedOptions(runOne->jobId())->at(t("PaperTone")), t("Warm"));
    EXPECT_EQ(server->receivedOptions(runTwo->jobId())->at(t("PaperTone")), t("Standard"));
}

} // namespace halvern
