// SPDX-License-Identifier: MIT
// A dialog that is open while something happens to its printer: a driverless one, on a real print server.
#include "dialog/server/server_events.h"
#include "dialog/window/job_line.h"
#include "dialog/window/panel_deck.h"
#include "dialog/window/printer_page.h"
#include "tests/dialog/dialog_support.h"
#include "tests/support/child_process.h"
#include "tests/support/scripted_server.h"
#include "tests/support/server_test.h"

#include <QFile>
#include <QRegularExpression>

#include <cups/cups.h>

namespace halvern {
namespace {

/// scripts/driverless-printer in a folder of its own.
class DriverlessPrinter {
public:
    DriverlessPrinter() { uri = tell({q("start"), folder_.path()}).trimmed(); }

    ~DriverlessPrinter() { tell({q("stop"), folder_.path()}); }

    DriverlessPrinter(const DriverlessPrinter&) = delete;
    DriverlessPrinter& operator=(const DriverlessPrinter&) = delete;

    void tell(const char* command, const char* words)
    {
        tell(QStringList{q(command), folder_.path()} + q(words).split(u' '));
    }

    QString uri;

private:
    static QString tell(const QStringList& arguments)
    {
        const ProgramResult result =
            runProgram(q(HALVERN_TEST_SCRIPTS "/driverless-printer"), arguments, {{"LD_PRELOAD", ""}});
        EXPECT_EQ(result.status, 0) << result.error.toStdString();
        return result.output;
    }

    QTemporaryDir folder_;
};

QString shownText(const QWidget& window, const char* name)
{
    QString text = window.findChild<QLabel*>(q(name))->text();
    return text.remove(QRegularExpression(q("<[^>]*>"))).remove(QChar(0x2068)).remove(QChar(0x2069));
}

} // namespace

class AliveTest : public ServerTest {
protected:
    static void SetUpTestSuite()
    {
        ServerTest::SetUpTestSuite();
        makeTestPhoto(folder.filePath(q("photo.jpg")));
    }

    static SessionRequest request(const char* printer)
    {
        return {q(printer), {}, {folder.filePath(q("photo.jpg"))}, 1};
    }

    inline static QTemporaryDir folder;
    FakePanels panels;
};

TEST_F(AliveTest, AQueueThatGetsItsDriverWhileItIsShownIsReadAgain)
{
    DriverlessPrinter printer;
    const auto setUp = [](const QStringList& with) {
        return runProgram(q("/usr/sbin/lpadmin"), QStringList{q("-p"), q("Late"), q("-E")} + with).status;
    };
    ASSERT_EQ(setUp({q("-v"), printer.uri}), 0);
    DialogSession session(request("Late"), panels);
    QStringList told;
    QObject::connect(&session, &DialogSession::notice, [&](const QString& notice) { told.append(notice); });
    session.start();
    ASSERT_TRUE(waitUntil([&] { return session.canPrint(); }));
    EXPECT_EQ(session.model()->choiceCount(q("PaperFeed")), 0);
    ASSERT_EQ(setUp({q("-P"), q(HALVERN_TEST_SCRIPTS "/../printer/tessarin.ppd")}), 0);
    EXPECT_TRUE(
        waitUntil([&] { return session.canPrint() && session.model()->choiceCount(q("PaperFeed")) > 0; }));
    EXPECT_EQ(told.filter(q("set up anew")).size(), 1) << told.join(u'\n').toStdString();
}

TEST_F(AliveTest, FollowsThePaperTheInkAndTheCover)
{
    DriverlessPrinter printer;
    const ProgramResult added =
        runProgram(q("/usr/sbin/lpadmin"), {q("-p"), q("Alive"), q("-E"), q("-v"), printer.uri, q("-m"),
                                            q("everywhere"), q("-o"), q("PageSize=A4")});
    ASSERT_EQ(added.status, 0) << added.error.toStdString();
    // The server makes the PPD after it has answered.
    ASSERT_TRUE(waitUntil([] { return QFile::exists(server->dir() + q("/server/etc/ppd/Alive.ppd")); }));
    DialogSession session(request("Alive"), panels);
    PrintDialog dialog(session);
    session.start();
    dialog.show();
    ASSERT_TRUE(waitUntil([&] { return session.canPrint() && session.trays().size() == 2; }));
    auto* tray = dialog.findChild<QRadioButton*>(q("tray1"));
    ASSERT_NE(tray, nullptr);
    EXPECT_TRUE(tray->text().contains(q("Photo tray")) && tray->text().contains(q("Glossy photo paper")));

    tray->click();
    EXPECT_EQ(session.model()->value(q("PageSize")), q("4x6.Borderless"));
    EXPECT_EQ(session.model()->value(q("InputSlot")), q("Photo"));
    EXPECT_EQ(session.model()->value(q("MediaType")), q("PhotographicGlossy"));

    printer.tell("load", "photo na_5x7_5x7in photographic-matte");
    EXPECT_TRUE(waitUntil([&] { return session.sheet().page.width() > 300.0; }));
    EXPECT_EQ(session.model()->value(q("MediaType")), q("PhotographicMatte"));
    EXPECT_TRUE(waitUntil([&] { return shownText(dialog, "jobLine").startsWith(q("13 × 18 cm")); }))
        << shownText(dialog, "jobLine").toStdString();
    session.undoLastChange();
    EXPECT_EQ(session.model()->value(q("MediaType")), q("PhotographicGlossy"));
    EXPECT_TRUE(
        waitUntil([&] { return shownText(dialog, "jobLine").contains(q("not loaded: needs 10 × 15 cm")); }));

    printer.tell("supplies", "20 80 6 50 50");
    EXPECT_TRUE(waitUntil([&] { return shownText(dialog, "jobLine").contains(q("Cyan Ink is low (6 %)")); }));
    EXPECT_TRUE(shownText(dialog, "printerState").contains(q("Cyan Ink is low")));

    printer.tell("cover", "open");
    PrintRun* run = session.makeRun();
    JobStage stage = JobStage::unknown;
    QObject::connect(run, &PrintRun::finished, &dialog,
                     [&](const PrintOutcome& outcome) { stage = outcome.stage; });
    run->start();
    EXPECT_TRUE(
        waitUntil([&] { return shownText(dialog, "printerState").contains(q("the cover is open")); }));
    EXPECT_TRUE(shownText(dialog, "reportAdvice").contains(q("Close the cover")));
    EXPECT_EQ(stage, JobStage::unknown);
    printer.tell("cover", "closed");
    EXPECT_TRUE(waitUntil([&] { return stage == JobStage::completed; }));
    EXPECT_TRUE(waitUntil([&] { return !shownText(dialog, "printerState").contains(q("cover")); }));
}

TEST_F(AliveTest, HearsOfWhatOthersDoToAQueueAndHelpsIt)
{
    ASSERT_TRUE(server->addQueue(q("Paused")));
    DialogSession session(request("Paused"), panels);
    PrintDialog dialog(session);
    session.start();
    ASSERT_TRUE(waitUntil([&] { return session.report().isThere; }));
    ASSERT_EQ(runProgram(q("/usr/sbin/cupsdisable"), {q("Paused")}).status, 0);
    QPushButton* resume = nullptr;
    EXPECT_TRUE(waitUntil([&] {
        resume = dialog.findChild<QPushButton*>(q("printerAction0"));
        return resume && shownText(dialog, "printerState").startsWith(q("Paused"));
    }));
    ASSERT_NE(resume, nullptr);
    resume->click();
    EXPECT_TRUE(waitUntil([&] { return shownText(dialog, "printerState").startsWith(q("Ready")); }));
    EXPECT_TRUE(waitUntil([&] { return !dialog.findChild<QPushButton*>(q("printerAction0")); }));
}

TEST_F(AliveTest, AsksAgainWhereTheQuestionThatAnEventCausedHasFailed)
{
    std::atomic<int> lists = 0;
    const ScriptedServer server([&](ipp_t* asked) {
        const int operation = ippGetOperation(asked);
        const bool fails = operation == IPP_OP_CUPS_GET_PRINTERS && ++lists == 2;
        cups::Ipp answer = scriptedAnswer(fails ? int(IPP_STATUS_ERROR_SERVICE_UNAVAILABLE) : 0);
        if (operation == IPP_OP_CREATE_PRINTER_SUBSCRIPTIONS)
            ippAddInteger(answer.get(), IPP_TAG_SUBSCRIPTION, IPP_TAG_INTEGER, "notify-subscription-id", 7);
        return answer;
    });
    PrinterList list(nullptr);
    list.start();
    EXPECT_TRUE(waitUntil([&] { return lists == 3; }));
    EXPECT_TRUE(waitUntil([&] { return list.problem().isEmpty(); }));
}

TEST_F(AliveTest, AsksAServerThatGrantsNoSubscriptionOverOneConnection)
{
    ScriptedServer refusing([](ipp_t* asked) {
        const bool isList = ippGetOperation(asked) == IPP_OP_CUPS_GET_PRINTERS;
        return scriptedAnswer(isList ? IPP_STATUS_ERROR_NOT_FOUND : IPP_STATUS_ERROR_OPERATION_NOT_SUPPORTED);
    });
    PrinterList list(nullptr);
    list.start();
    const QString again = q("CUPS-Get-Printers");
    EXPECT_TRUE(waitUntil([&] { return refusing.asked().count(again) >= 3; }));
    EXPECT_EQ(refusing.asked().count(q("Create-Printer-Subscriptions")), 1);
    EXPECT_TRUE(list.problem().isEmpty());
    EXPECT_LE(refusing.connections(), 2) << "one of them looks for printers on the network";
}

} // namespace halvern
