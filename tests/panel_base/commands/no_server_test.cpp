#include "platform/foundation/notifications/notification_center.h"
#include "platform/foundation/threads/work_queue.h"
#include "platform/printing/command_job.h"
#include "tests/panel_base/commands/command_panel.h"
#include "tests/support/test.h"

#include <cups/cups.h>

namespace halvern {

namespace {

class RecordingPrinter : public Printer {
public:
    using Printer::Printer;

    int sendCommand(const QString& commands, const QString& title) const override
    {
        sent.append(title + QLatin1Char('|') + commands);
        return kPrintingGeneralError;
    }

    mutable QStringList sent;
};

} // namespace

/// Where no server answers.
class NoServerTest : public testing::Test {
protected:
    NoServerTest()
    {
        qputenv("CUPS_SERVER", "/nonexistent/cups.sock");
        cupsSetServer(nullptr);
    }

    ~NoServerTest() override
    {
        EXPECT_TRUE(waitForWorkQueues(1000 * kPatience));
        qunsetenv("CUPS_SERVER");
        cupsSetServer(nullptr);
    }

    LogCapture log;
};

TEST_F(NoServerTest, TheCommandFileHasALineFeedAfterEachLine)
{
    EXPECT_EQ(commandFile({}).toUtf8(), "#CUPS-COMMAND\n\n");
    // A command is text, not a pattern.
    EXPECT_EQ(commandFile({q("é %1 %2")}).toUtf8(), "#CUPS-COMMAND\n\xc3\xa9 %1 %2\n");
}

TEST_F(NoServerTest, AJobThatCannotBeMadeEndsInOneAbort)
{
    const auto panel = makeCommandPanel("Photo");
    panel->sendPrinterCommands(kReportAndConfigure);
    ASSERT_TRUE(waitForWorkQueues(1000 * kPatience));
    EXPECT_EQ(panel->aborts, 1);
    EXPECT_EQ(panel->updates, 0);
    EXPECT_FALSE(panel->hooksRanOnTheMainThread);
    EXPECT_FALSE(panel->isWatching());
}

TEST_F(NoServerTest, QueriesAnswerThatThereIsNothing)
{
    const auto panel = makeCommandPanel("Photo");
    EXPECT_EQ(panel->activeJobIDForDesinationName(q("Photo")), 0);
    EXPECT_EQ(panel->printerStateReasons(), std::nullopt);
    EXPECT_EQ(panel->statesForDestinationName(std::nullopt), std::nullopt);
    EXPECT_NE(Printer(q("Photo"), QString()).sendCommand(QString(), QString()), 0);
}

TEST_F(NoServerTest, WithoutMemoryForTheCopiesNothingIsWatchedAndNobodyCalled)
{
    const auto panel = makeCommandPanel("Photo");
    for (const int copies : {0, 1}) {
        panel->copiesLeft = copies;
        panel->waitForJobCompletion(1);
        EXPECT_EQ(log.lines(), QStringList{q("memory allocation error")});
        EXPECT_FALSE(panel->isWatching());
        log.clear();
    }
    ASSERT_TRUE(waitForWorkQueues(1000 * kPatience));
    EXPECT_EQ(panel->aborts + panel->updates, 0);
}

TEST_F(NoServerTest, TheOtherRouteLeavesTheCommandFileToThePrinter)
{
    auto host = std::make_shared<FakeHost>();
    const auto printer = std::make_shared<RecordingPrinter>(q("Photo"), QString());
    host->printer = printer;
    const auto panel = makePanel<CommandPanel>(host);
    panel->shouldHide();
    panel->dsendPrinterCommands(kReportAndConfigure);
    EXPECT_EQ(printer->sent, QStringList{q("Status Check...|#CUPS-COMMAND\nReportStatus\nAutoConfigure\n")});
    host->printer.reset();
    panel->dsendPrinterCommands(kReportAndConfigure);
    EXPECT_FALSE(panel->isWatching());
}

TEST_F(NoServerTest, NotificationsReachTheHooks)
{
    const auto panel = makeCommandPanel("Photo");
    panel->ppdUpdateDidComplete(Notification{});
    EXPECT_EQ(panel->updates, 1);
    panel->ppdUpdateDidAbort(Notification{});
    EXPECT_EQ(panel->aborts, 1);
}

} // namespace halvern
