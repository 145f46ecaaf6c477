// SPDX-License-Identifier: MIT
// The dialog's model and window on a real print server with virtual printers.
#include "dialog/job/job_actions.h"
#include "dialog/program/batch_print.h"
#include "dialog/session/panel_host.h"
#include "dialog/session/printer_panels.h"
#include "dialog/window/message_bar.h"
#include "dialog/window/panel_deck.h"
#include "platform/printing/printer.h"
#include "platform/toolkit/user_action.h"
#include "tests/dialog/dialog_support.h"
#include "tests/dialog/tiff_file.h"
#include "tests/support/scripted_server.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QMessageBox>
#include <QTabWidget>

namespace halvern {
namespace {

bool containsText(const QString& text, const char* words)
{
    return text.contains(q(words));
}

} // namespace

class DialogServerTest : public ServerTest {
protected:
    static void SetUpTestSuite()
    {
        ServerTest::SetUpTestSuite();
        ASSERT_TRUE(
            server->addQueue(q("Tessarin"), {}, {}, {q("--default"), q("--info"), q("Photo printer")}));
        ASSERT_TRUE(server->addQueue(q("Other")));
        ASSERT_TRUE(server->addQueue(q("Paused"), {}, {}, {q("--disabled")}));
        ASSERT_TRUE(server->addQueue(q("Rejecting"), {}, {}, {q("--rejecting")}));
        ASSERT_TRUE(server->addQueue(q("Jam"), {}, q("halvern://virtual/Jam?stop=0")));
        makeTestPhoto(photoPath());
    }

    static QString photoPath() { return folder.filePath(q("photo.jpg")); }

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
        EXPECT_TRUE(waitUntil([&] { return isOver; })) << qPrintable(*sentence);
        return stage;
    }

    inline static QTemporaryDir folder;
    FakePanels panels;
};

TEST_F(DialogServerTest, ListsQueuesWithTheirStatesAndSelectsTheDefault)
{
    DialogSession session(request({}), panels);
    ASSERT_TRUE(isReady(session));
    EXPECT_EQ(session.printerName(), q("Tessarin"));
    const PrinterList& list = session.printerList();
    ASSERT_EQ(list.printers().size(), 5u);
    EXPECT_EQ(list.find(q("Tessarin"))->info, q("Photo printer"));
    EXPECT_TRUE(containsText(stateText(*list.find(q("Paused"))), "Paused"));
    EXPECT_TRUE(containsText(stateText(*list.find(q("Rejecting"))), "not accept"));
}

TEST_F(DialogServerTest, ACopiedCommandLeavesOutThePagesThatTheUserDid)
{
    SessionRequest two = request(q("Tessarin"));
    two.files = {writeFile(folder.filePath(q("three.tif")), tiffOf({0, 0, 0})), photoPath()};
    two.server = q("print.example:631");
    DialogSession session(two, panels);
    ASSERT_TRUE(isReady(session));
    ASSERT_EQ(session.photos().size(), 4u);
    EXPECT_FALSE(session.command().contains(q("--pages")));
    EXPECT_TRUE(session.command().contains(q(" --server print.example:631 -d ")));
    session.movePhotos({2}, 0);
    EXPECT_TRUE(session.command().contains(q(" --pages 3-5,7 ")))
        << "the file's last page, and the file again";
    session.undoLastChange();
    // As the preview finds it out, one after the other.
    for (const auto& [place, pages] : {std::pair(1, " --pages 1,3-4 "), std::pair(0, " --pages 3-4 ")}) {
        const Photo photo = session.photos()[size_t(place)];
        session.noteDamage(photo.path, photo.page);
        session.settleDamaged(false);
        const QString command = session.command();
        EXPECT_TRUE(command.contains(q(pages)) && command.contains(q(" --print-damaged ")))
            << qPrintable(command);
    }
    session.noteDamage(photoPath(), 0);
    PageSettings page = session.page();
    page.pages.ranges = q("2");
    session.setPage(page);
    session.settleDamaged(false);
    EXPECT_TRUE(session.whyNotPrintable().contains(q("left out"))) << "another page was not asked for";
    EXPECT_FALSE(session.command().contains(photoPath())) << "nothing of it is printed";
}

TEST_F(DialogServerTest, AFileThatCannotBeReadIsCountedWherePagesAndSwitchesAre)
{
    SessionRequest two = request(q("Tessarin"));
    two.files = {q("/none.jpg"), photoPath(), photoPath()};
    two.pages.ranges = q("2");
    two.placements = {{{0.5, 0.5}, 3.0}, {{0.5, 0.5}, 2.0}, {}};
    DialogSession session(two, panels);
    ASSERT_TRUE(isReady(session));
    EXPECT_EQ(session.chosenPages().pages, std::vector<size_t>{0});
    EXPECT_EQ(session.photos()[0].placement.zoom, 2.0);
}

TEST_F(DialogServerTest, AServerThatFailsForAMomentDoesNotEmptyTheListAndNoPrinterIsListedTwice)
{
    PrinterList list(nullptr);
    list.start();
    ASSERT_TRUE(waitUntil([&] { return list.hasAnswer(); }));
    const std::vector<PrinterInfo> before = list.printers();
    const QByteArray server = qgetenv("CUPS_SERVER");
    qputenv("CUPS_SERVER", "/nonexistent/cups.sock");
    list.refresh();
    EXPECT_TRUE(waitUntil([&] { return !list.problem().isEmpty(); }));
    qputenv("CUPS_SERVER", server);
    EXPECT_EQ(list.printers().size(), before.size());
    PrinterInfo discovered;
    discovered.isDiscovered = true;
    discovered.name = q("Next door");
    const std::vector<PrinterInfo> all = withDiscovered(before, {before.front(), discovered});
    EXPECT_EQ(all.size(), before.size() + 1);
    EXPECT_EQ(all.back(), discovered);
}

TEST_F(DialogServerTest, SaysWhyAJobDoesNotPrintAndCancelsIt)
{
    const struct {
        const char* queue;
        OptionValues options;
        JobStage stage;
        const char* words;
    } cases[] = {
        {"Tessarin", {{q("job-hold-until"), q("indefinite")}}, JobStage::held, "is held"},
        {"Paused", {}, JobStage::blocked, "paused"},
        {"Jam", {}, JobStage::stopped, "paper jam"},
    };

    for (const auto& c : cases) {
        SCOPED_TRACE(c.queue);
        DialogSession session(request(q(c.queue), c.options), panels);
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

TEST_F(DialogServerTest, OfSeveralJobsAllAreFollowedCancelledOrLeft)
{
    SessionRequest three = request(q("Tessarin"));
    three.files = {writeFile(folder.filePath(q("several.tif")), tiffOf({0, 0, 0}))};
    three.photosPerJob = 1;
    QString sentence;
    {
        DialogSession session(three, panels);
        ASSERT_TRUE(isReady(session));
        EXPECT_EQ(runJob(*session.makeRun(), &sentence), JobStage::completed);
        EXPECT_TRUE(containsText(sentence, "3 photos were printed in 3 jobs")) << qPrintable(sentence);
    }
    three.printer = q("Paused");
    for (const bool isLeft : {false, true}) {
        DialogSession session(three, panels);
        ASSERT_TRUE(isReady(session));
        PrintRun* run = session.makeRun();
        PrintOutcome outcome;
        QObject::connect(run, &PrintRun::finished, run, [&](const PrintOutcome& end) { outcome = end; });
        run->start();
        ASSERT_TRUE(waitUntil([&] { return !run->wholeJobs().isEmpty(); }));
        if (isLeft)
            run->stop();
        else
            run->cancel();
        ASSERT_TRUE(waitUntil([&] { return run->isOver(); }));
        EXPECT_EQ(outcome.isLeft, isLeft);
        const QString named = QString::number(run->wholeJobs().last());
        EXPECT_TRUE(outcome.sentence.contains(isLeft ? named : q("nothing was printed")))
            << qPrintable(outcome.sentence);
    }
}

TEST_F(DialogServerTest, ARefusedJobLeavesNothingOnTheServer)
{
    DialogSession session(request(q("Rejecting")), panels);
    ASSERT_TRUE(isReady(session));
    PrintRun* run = session.makeRun();
    QString sentence;
    runJob(*run, &sentence);
    EXPECT_TRUE(containsText(sentence, "does not accept jobs")) << qPrintable(sentence);
    EXPECT_EQ(run->jobId(), 0);
}

TEST_F(DialogServerTest, PanelsAreCreatedShownHiddenAndReleasedByTheProtocol)
{
    DialogSession session(request(q("Tessarin")), panels);
    auto dialog = std::make_unique<PrintDialog>(session);
    dialog->show();
    ASSERT_TRUE(isReady(session));
    EXPECT_EQ(panels.calls, (QStringList{q("first: restore"), q("second: restore")}))
        << "no view is loaded yet";
    ASSERT_TRUE(dialog->findChild<PanelDeck*>()->showPage(q("second")));
    EXPECT_EQ(panels.calls.mid(2), (QStringList{q("second: view"), q("second: willShow")}));
    EXPECT_TRUE(panels.second.lock()->view->isVisible());
    dialog->findChild<PanelDeck*>()->showPage(q("summary"));
    EXPECT_EQ(panels.calls.mid(4), QStringList{q("second: shouldHide")});
    EXPECT_FALSE(panels.second.lock()->view->isVisible());
    dialog->findChild<PanelDeck*>()->showPage(q("first"));
    EXPECT_TRUE(session.changeOption(q("PaperTone"), q("Warm")));
    panels.calls.clear();
    const std::shared_ptr<HostCallback> oldHost = panels.first.lock()->host;
    ASSERT_TRUE(oldHost->ppdFile() && oldHost->PMPrinter()->id() == q("Tessarin"));
    ppd_file_t* oldPpd = oldHost->ppdFile();
    PageSettings page = session.page();
    page.colours.profile = q("/icc/for-this-printer.icc");
    session.setPage(page);
    session.selectPrinter(q("Other"));
    EXPECT_EQ(ppd::defaultChoice(oldPpd, q("PaperFeed")), q("Sheet"))
        << "a panel's queued work may still read it";
    EXPECT_EQ(panels.calls.value(0), q("first: shouldHide"));
    EXPECT_TRUE(panels.calls.contains(q("second: shouldHide"))) << "its work in the background ends too";
    EXPECT_TRUE(panels.calls.contains(q("first: gone")) && panels.calls.contains(q("second: gone")));
    EXPECT_FALSE(oldHost->ppdFile() || oldHost->PMPrinter() || oldHost->printSettings() ||
                 oldHost->pageFormat());
    EXPECT_FALSE(oldHost->willChangePPDOptionKeyValue_ppdChoice(q("PaperTone"), q("Warm")));
    ASSERT_TRUE(waitUntil([&] { return session.canPrint(); }));
    EXPECT_EQ(panels.first.lock()->host->PMPrinter()->id(), q("Other"));
    EXPECT_EQ(session.page().colours.profile, QString()) << "it is the other printer's";
    EXPECT_TRUE(panels.first.lock()->changes.isEmpty()) << "news of the old printer's options";
    EXPECT_TRUE(panels.first.lock()->host->PMPrinter()->copyDeviceURI());
    panels.calls.clear();
    dialog->close();
    EXPECT_EQ(panels.calls.count(q("first: closing")), 1);
    EXPECT_EQ(panels.calls.count(q("second: closing")), 1);
}

TEST_F(DialogServerTest, AResolvedConflictIsShownToldToPanelsAndUndone)
{
    DialogSession session(request(q("Tessarin"), {{q("TwoSided"), q("LongEdge")}}), panels);
    PrintDialog dialog(session);
    dialog.show();
    ASSERT_TRUE(isReady(session));
    auto* message = dialog.findChild<MessageBar*>();
    const std::shared_ptr<RecordingPanel> panel = panels.first.lock();
    {
        const UserAction action;
        EXPECT_TRUE(panel->host->willChangePPDOptionKeyValue_ppdChoice(q("PaperFeed"), q("Roll")));
    }
    EXPECT_TRUE(panel->changes.isEmpty()) << "not while the panel still waits for the answer";
    ASSERT_TRUE(waitUntil([&] { return panel->changes.contains(q("TwoSided=None")); }));
    EXPECT_TRUE(containsText(message->text(), "Two-Sided: Off")) << qPrintable(message->text());
    QTest::mouseClick(dialog.findChild<QPushButton*>(q("messageAction")), Qt::LeftButton);
    EXPECT_EQ(session.model()->value(q("TwoSided")), q("LongEdge"));
    EXPECT_EQ(session.model()->value(q("PaperFeed")), q("Sheet"));
    EXPECT_TRUE(session.changeOption(q("PaperFeed"), q("Roll")));
    EXPECT_TRUE(session.changeOption(q("PaperFeed"), q("Sheet")));
    session.undoLastChange();
    EXPECT_EQ(session.model()->value(q("TwoSided")), q("None")) << "what was changed again is not undone";
    EXPECT_FALSE(panel->host->willChangePPDOptionKeyValue_ppdChoice(q("SharpnessIntensity"), q("9")));
    EXPECT_TRUE(containsText(message->text(), "Intensity")) << qPrintable(message->text());
}

TEST_F(DialogServerTest, KeptValuesAreInThePrintSettingsUntilAListedOneReplacesThem)
{
    DialogSession session(request(q("Tessarin")), panels);
    ASSERT_TRUE(isReady(session));
    const std::shared_ptr<HostCallback> host = panels.first.lock()->host;
    QVariant held;
    ASSERT_TRUE(host->willChangePPDOptionKeyValue_ppdChoice(q("SharpnessIntensity"), q("1.24")));
    EXPECT_EQ(host->printSettings()->getValue(q("SharpnessIntensity"), held), kPrintingOk);
    EXPECT_EQ(held, QVariant(q("1.24")));
    ASSERT_TRUE(host->willChangePPDOptionKeyValue_ppdChoice(q("SharpnessIntensity"), q("1.50")));
    EXPECT_EQ(host->printSettings()->getValue(q("SharpnessIntensity"), held), kPrintingKeyNotFound);
}

TEST_F(DialogServerTest, ThePageControlsChangeThePreviewAndTheJob)
{
    DialogSession session(request(q("Tessarin")), panels);
    PrintDialog dialog(session);
    dialog.show();
    ASSERT_TRUE(isReady(session));
    auto* paper = dialog.findChild<QComboBox*>(q("paperSize"));
    paper->showPopup();
    paper->view()->setCurrentIndex(paper->model()->index(paper->findData(q("A4")), 0));
    QTest::keyClick(paper->view(), Qt::Key_Return);
    EXPECT_EQ(session.model()->value(q("PageSize")), q("A4"));
    auto* fill = dialog.findChild<QRadioButton*>(q("scaling1"));
    QTest::mouseClick(fill, Qt::LeftButton, {}, QPoint(8, fill->height() / 2));
    const PageLayout layout = session.layoutFor(session.photos().front());
    EXPECT_TRUE(layout.isCut && layout.turned);
    EXPECT_NEAR(layout.page.width(), 841.89, 0.01);
}

TEST_F(DialogServerTest, TheChosenPagesAreShownAndSentAndAWrongChoiceIsExplained)
{
    SessionRequest two = request(q("Tessarin"));
    two.files += two.files;
    DialogSession session(two, panels);
    PrintDialog dialog(session);
    dialog.show();
    ASSERT_TRUE(isReady(session) && QTest::qWaitForWindowActive(&dialog));
    auto* field = dialog.findChild<QLineEdit*>(q("pageRanges"));
    const auto* problem = dialog.findChild<QLabel*>(q("pageRangeProblem"));
    const auto* print = dialog.findChild<QPushButton*>(q("printButton"));
    field->setFocus();
    QTest::keyClicks(field, q("2-3"));
    EXPECT_TRUE(problem->isVisible() && containsText(problem->text(), "1 to 2"));
    EXPECT_TRUE(!print->isEnabled() && print->accessibleDescription() == problem->text());
    QTest::keyClick(field, Qt::Key_Backspace);
    EXPECT_TRUE(problem->isHidden() && print->isEnabled());
    EXPECT_TRUE(session.collectOptions().contains({q("page-ranges"), q("1-1")}));
    EXPECT_EQ(session.chosenPages().pages, std::vector<size_t>{1});
}

TEST_F(DialogServerTest, NothingIsPrintedBeforeAllPhotosAreRead)
{
    // One that is there before the printer, and some that take longer.
    QImage large(3000, 3000, QImage::Format_RGB32);
    large.fill(Qt::gray);
    const QString slow = folder.filePath(q("slow.png"));
    ASSERT_TRUE(large.save(slow));
    SessionRequest four = request(q("Tessarin"));
    four.files.append({slow, slow, slow});
    DialogSession session(four, panels);
    int asked = 0;
    const auto look = [&] {
        EXPECT_TRUE(session.photos().size() == 4 || !session.canPrint());
        ++asked;
    };
    QObject::connect(&session, &DialogSession::photosChanged, &session, look);
    QObject::connect(&session, &DialogSession::printerReady, &session, look);
    ASSERT_TRUE(isReady(session));
    EXPECT_EQ(asked, 5);
}

TEST_F(DialogServerTest, PrintsFromTheWindowAndSaysSo)
{
    DialogSession session(request(q("Tessarin")), panels);
    PrintDialog dialog(session);
    dialog.show();
    auto* print = dialog.findChild<QPushButton*>(q("printButton"));
    EXPECT_FALSE(print->isEnabled()) << "there is nothing to print yet";
    ASSERT_TRUE(isReady(session));
    dialog.findChild<PanelDeck*>()->showPage(q("first"));
    panels.calls.clear();
    QTest::mouseClick(print, Qt::LeftButton);
    EXPECT_EQ(panels.calls, (QStringList{q("first: save"), q("second: save"), q("first: shouldHide"),
                                         q("second: shouldHide")}));
    ASSERT_TRUE(waitUntil([&] { return dialog.run() && dialog.run()->isOver(); }));
    EXPECT_TRUE(dialog.outcome().printed) << qPrintable(dialog.outcome().sentence);
    EXPECT_TRUE(containsText(dialog.findChild<QLabel*>(q("status"))->text(), "Printed"));
    EXPECT_EQ(panels.calls.mid(4), QStringList{q("first: willShow")}) << "the panel is in use again";
    dialog.close();
    EXPECT_TRUE(panels.calls.contains(q("first: closing to print")));
}

TEST_F(DialogServerTest, ADamagedPhotoPrintsOnlyIfTheUserSaysSo)
{
    const QByteArray whole = readFile(photoPath());
    SessionRequest wanted = request(q("Tessarin"));
    wanted.files.append(writeFile(folder.filePath(q("cut.jpg")), whole.first(whole.size() * 3 / 4)));
    DialogSession session(wanted, panels);
    PrintDialog dialog(session);
    dialog.show();
    ASSERT_TRUE(isReady(session));
    session.setPlacement(1, {{0.5, 1.0}, 2.0});
    EXPECT_EQ(session.photos()[0].placement, PhotoPlacement()) << "each photo has a place of its own";
    const auto answer = [&](QMessageBox::ButtonRole role) {
        QTest::mouseClick(dialog.findChild<QPushButton*>(q("printButton")), Qt::LeftButton);
        auto* box = dialog.findChild<QMessageBox*>();
        EXPECT_TRUE(box && containsText(box->text(), "cut.jpg"));
        for (QAbstractButton* button : box ? box->buttons() : QList<QAbstractButton*>()) {
            if (box->buttonRole(button) == role)
                button->click();
        }
        drainMainQueue();
    };
    answer(QMessageBox::RejectRole);
    EXPECT_FALSE(dialog.run());
    answer(QMessageBox::DestructiveRole);
    ASSERT_TRUE(dialog.run());
    EXPECT_EQ(session.photos().size(), 1u) << "the whole one";
    EXPECT_TRUE(waitUntil([&] { return dialog.run()->isOver(); }, 60));
}

TEST_F(DialogServerTest, ARestingJobIsReleasedByItsButtonAndLeftAloneByClosing)
{
    const OptionValues held{{q("job-hold-until"), q("indefinite")}};
    for (const bool isReleased : {true, false}) {
        DialogSession session(request(q("Tessarin"), held), panels);
        PrintDialog dialog(session);
        dialog.show();
        ASSERT_TRUE(isReady(session));
        QTest::mouseClick(dialog.findChild<QPushButton*>(q("printButton")), Qt::LeftButton);
        auto* remedy = dialog.findChild<QPushButton*>(q("remedyButton"));
        ASSERT_TRUE(waitUntil([&] { return remedy->isVisible(); }));
        if (isReleased) {
            QTest::mouseClick(remedy, Qt::LeftButton);
            EXPECT_TRUE(waitUntil([&] { return dialog.outcome().printed; }, 60));
            ASSERT_TRUE(session.changeOption(q("PaperTone"), q("Warm")));
            EXPECT_FALSE(dialog.findChild<QLabel*>(q("status"))->isVisible()) << "said of other choices";
            continue;
        }
        const int job = dialog.run()->jobId();
        QTest::keyClick(&dialog, Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(askJobStatus(q("Tessarin"), job, cups::makeCancelFlag()).stage, JobStage::held);
        EXPECT_EQ(cancelJob(q("Tessarin"), job).problem, QString());
    }
}

TEST_F(DialogServerTest, ASilentServerNeverHoldsTheWindowUp)
{
    const ScriptedServer silent({}, ScriptedServer::Then::beSilent);
    DialogSession session(request({}), panels);
    PrintDialog dialog(session);
    dialog.show();
    session.start();
    EXPECT_TRUE(waitUntil([&] { return session.hasPhotos() && silent.callers() > 0; }));
    session.selectPrinter(q("Other"));
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_GT(silent.callers(), 0) << "it is a worker that still waits";
}

TEST_F(DialogServerTest, TheTabKeyGoesFromThePrinterDownToPrintAndReturnEndsAnEdit)
{
    DialogSession session(request(q("Tessarin")), panels);
    PrintDialog dialog(session);
    dialog.resize(1240, 780);
    dialog.show();
    ASSERT_TRUE(isReady(session) && QTest::qWaitForWindowActive(&dialog));
    // A panel's page may have tabs, and its controls in any order.
    QTabWidget tabs(dialog.findChild<QWidget*>(q("pagePage")));
    auto* const tab = new QWidget;
    tabs.addTab(tab, q("Tab"));
    tabs.setGeometry(0, 300, 200, 120);
    for (const auto& [name, y] : {std::pair("lower", 50), {"upper", 10}}) {
        auto* const field = new QLineEdit(tab);
        field->setObjectName(q(name));
        field->move(0, y);
    }
    tabs.show();
    auto* const first = dialog.findChild<QWidget*>(q("printer"));
    first->setFocus();
    QStringList visited;
    do {
        visited.append(dialog.focusWidget()->objectName());
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    } while (dialog.focusWidget() != first && visited.size() < 30);
    visited.removeIf(
        [](const QString& name) { return name.startsWith(q("turn")) || name.startsWith(q("scaling")); });
    EXPECT_EQ(visited.join(u' '),
              q("printer jobsButton preset presetMenu search pageList paperSize borderless twoSided colourBy "
                "qt_tabwidget_tabbar upper lower copies outputButton cancelButton "
                "printButton preview cropButton zoomButton addPhotos"))
        << qPrintable(visited.join(u' '));
    QLineEdit field(dialog.findChild<QWidget*>(q("pagePage")));
    field.show();
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(dialog.run(), nullptr);
}

TEST(PrinterPanelsTest, NewsOfAPrinterThatIsLeftReachNobody)
{
    FakePanels source;
    PrinterPanels panels(source);
    DialogSession session({}, source);
    for (const char* tone : {"Warm", "Cool"}) {
        panels.meet(std::make_shared<PanelHost>(session, nullptr, nullptr, true));
        panels.load(q("any"));
        panels.tell(q("PaperTone"), q(tone));
        if (q(tone) == q("Warm"))
            panels.leave();
    }
    EXPECT_TRUE(waitUntil([&] { return !source.first.lock()->changes.isEmpty(); }));
    EXPECT_EQ(source.first.lock()->changes, QStringList{q("PaperTone=Cool")});
}

TEST(MessageBarTest, KeepsAllAndNeverPutsAnotherButtonUnderThePointer)
{
    QWidget window;
    MessageBar bar(&window);
    bar.resize(400, 60);
    window.show();
    int undone = 0;
    bar.showMessage(MessageKind::warning, q("first"));
    const int oneLine = bar.heightForWidth(400);
    bar.showMessage(MessageKind::warning, q("words ").repeated(60), {}, q("long"));
    EXPECT_GT(bar.heightForWidth(400), oneLine);
    bar.withdraw(q("long"));
    bar.showMessage(MessageKind::information, q("second"), {q("Undo"), [&] { ++undone; }}, q("printer/undo"));
    EXPECT_EQ(bar.text(), q("second"));
    bar.setAttribute(Qt::WA_UnderMouse);
    bar.showMessage(MessageKind::error, q("third"), {q("Resume"), [&] { undone = 100; }});
    EXPECT_EQ(bar.text(), q("second")) << "it may be about to be pressed";
    EXPECT_EQ(bar.count(), 3);
    bar.withdraw(q("printer"));
    bar.findChild<QPushButton*>(q("messageAction"))->click();
    EXPECT_EQ(undone, 0) << "the button that was meant has gone";
    QEvent leave(QEvent::Leave);
    bar.setAttribute(Qt::WA_UnderMouse, false);
    QCoreApplication::sendEvent(&bar, &leave);
    EXPECT_EQ(bar.text(), q("third"));
    bar.findChild<QPushButton*>(q("messageAction"))->click();
    EXPECT_EQ(undone, 100);
    EXPECT_EQ(bar.text(), q("first"));
}

TEST_F(DialogServerTest, ADamagedDescriptionIsNamedAndTheWindowLives)
{
    ASSERT_TRUE(server->addQueue(q("Damaged")));
    writeFile(server->dir() + q("/server/etc/ppd/Damaged.ppd"),
              "*PPD-Adobe: \"4.3\"\n*OpenUI *X: PickOne\n*X " + QByteArray(400, 'x') + ": \"\"\n");
    DialogSession session(request(q("Damaged")), panels);
    PrintDialog dialog(session);
    dialog.show();
    session.start();
    auto* message = dialog.findChild<MessageBar*>();
    ASSERT_TRUE(waitUntil([&] { return containsText(message->text(), "Damaged"); }))
        << qPrintable(message->text());
    EXPECT_FALSE(dialog.findChild<QPushButton*>(q("printButton"))->isEnabled());
    session.selectPrinter(q("Tessarin"));
    EXPECT_TRUE(waitUntil([&] { return session.canPrint(); }));
}

TEST_F(DialogServerTest, APlugInThatFailsIsANoticeAndNoObstacle)
{
    panels.failure = q("The pages are broken.");
    DialogSession session(request(q("Tessarin")), panels);
    PrintDialog dialog(session);
    dialog.show();
    ASSERT_TRUE(isReady(session));
    EXPECT_EQ(dialog.findChild<MessageBar*>()->text(), panels.failure);
    EXPECT_TRUE(session.canPrint());
}

TEST_F(DialogServerTest, TwoDialogsAtOnceKeepTheirOwnChoices)
{
    FakePanels otherPanels;
    DialogSession one(request(q("Tessarin")), panels);
    DialogSession two(request(q("Tessarin")), otherPanels);
    PrintDialog first(one);
    PrintDialog second(two);
    first.show();
    second.show();
    ASSERT_TRUE(isReady(one) && isReady(two));
    ASSERT_TRUE(one.changeOption(q("PaperTone"), q("Warm")));
    EXPECT_EQ(two.model()->value(q("PaperTone")), q("Standard"));
    PrintRun* runOne = one.makeRun();
    PrintRun* runTwo = two.makeRun();
    runOne->start();
    QString sentence;
    EXPECT_EQ(runJob(*runTwo, &sentence), JobStage::completed) << qPrintable(sentence);
    EXPECT_TRUE(waitUntil([&] { return runOne->isOver(); }));
    EXPECT_EQ(server->receivedOptions(runOne->jobId())->at(q("PaperTone")), q("Warm"));
    EXPECT_EQ(server->receivedOptions(runTwo->jobId())->at(q("PaperTone")), q("Standard"));
}

} // namespace halvern
