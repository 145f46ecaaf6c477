// SPDX-License-Identifier: MIT
// The print dialog worked through one thing while its print server has a fault: scripts/faults starts it
// before a server of tests/support/fault_server.py. Usage: halvern-fault-walk WHAT PHOTO QUEUE OTHER TITLE
// Says "begin" and waits for a line when the faults may come, and ends with a line of JSON: what the main
// loop and closing the window took, in milliseconds, and how the job ended in the dialog's words.
#include "dialog/program/application.h"
#include "dialog/session/plugin_loader.h"
#include "dialog/window/panel_deck.h"
#include "dialog/window/print_dialog.h"
#include "tests/faults/run_until.h"
#include "tests/support/stall_meter.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPushButton>

#include <cstdio>

namespace {

using namespace halvern;

constexpr int kReady = 60000; // milliseconds

struct Walk {
    DialogSession& session;
    PrintDialog& dialog;
    QString other;
    StallMeter meter = {};
    QString problem = {}; // told, whatever it was
    double longestClick = 0.0;

    void begin()
    {
        std::puts("begin");
        std::fflush(stdout);
        char line[16];
        if (!std::fgets(line, sizeof line, stdin))
            std::exit(2);
        meter.restart();
    }

    void click(const char* name)
    {
        auto* const button = dialog.findChild<QPushButton*>(QLatin1StringView(name));
        const Stopwatch clock;
        button->click();
        longestClick = std::max(longestClick, clock.milliseconds());
    }

    bool hasRun() const { return dialog.run() && dialog.run()->isOver(); }

    bool isSent() const { return dialog.run() && (dialog.run()->jobId() > 0 || dialog.run()->isOver()); }
};

struct Stretch {
    const char* name;
    bool isOpen; ///< whether the dialog is ready before it
    int longest; ///< milliseconds that it may take: with a fault, what it is given to be told
    std::function<void(Walk&)> start;
    std::function<bool(Walk&)> isOver;
};

const Stretch kStretches[] = {
    {"opening", false, 14000, [](Walk& walk) { walk.session.start(); },
     [](Walk& walk) { return walk.session.canPrint() || !walk.problem.isEmpty(); }},
    {"choosing", true, 14000, [](Walk& walk) { walk.session.selectPrinter(walk.other); },
     [](Walk& walk) { return walk.session.canPrint() || !walk.problem.isEmpty(); }},
    {"refresh", true, 2500,
     [](Walk& walk) {
         walk.dialog.findChild<PanelDeck*>()->showPage(QStringLiteral("com.halvern.print.pde.features"));
     },
     [](Walk&) { return false; }},
    {"feed", true, 1500,
     [](Walk& walk) {
         walk.dialog.findChild<PanelDeck*>()->showPage(QStringLiteral("com.halvern.print.pde.features"));
         walk.session.changeOption(QStringLiteral("PaperFeed"), QStringLiteral("Roll"));
         walk.session.changeOption(QStringLiteral("PaperFeed"), QStringLiteral("Sheet"));
     },
     [](Walk&) { return false; }},
    {"sending", true, 30000, [](Walk& walk) { walk.click("printButton"); },
     [](Walk& walk) { return walk.isSent(); }},
    {"following", true, 30000,
     [](Walk& walk) {
         walk.click("printButton");
         runUntil([&] { return walk.isSent(); }, kReady);
         walk.begin();
     },
     [](Walk& walk) { return walk.hasRun(); }},
    {"cancelling", true, 30000,
     [](Walk& walk) {
         walk.click("printButton");
         runUntil([&] { return walk.isSent(); }, kReady);
         walk.begin();
         walk.click("cancelJobButton");
     },
     [](Walk& walk) { return walk.hasRun(); }},
};

QString outcomeOf(PrintDialog& dialog)
{
    if (!dialog.run())
        return QStringLiteral("none");
    if (dialog.isRunning())
        return dialog.run()->jobId() > 0 && !dialog.run()->isCancelled() ? QStringLiteral("sent")
                                                                         : QStringLiteral("unknown");
    const PrintOutcome& outcome = dialog.outcome();
    if (outcome.printed)
        return QStringLiteral("printed");
    if (outcome.stage == JobStage::cancelled)
        return QStringLiteral("cancelled");
    return outcome.jobId > 0 ? QStringLiteral("unknown") : QStringLiteral("failed");
}

void walkThrough(const Stretch& stretch, Walk& walk)
{
    if (stretch.isOpen) {
        walk.session.start();
        if (!runUntil([&] { return walk.session.canPrint() && walk.session.printerList().hasAnswer(); },
                      kReady))
            qFatal("the dialog is not ready: %s", qPrintable(walk.problem));
        runUntil([] { return false; }, 300);
    }
    if (qstrcmp(stretch.name, "following") != 0 && qstrcmp(stretch.name, "cancelling") != 0)
        walk.begin();
    stretch.start(walk);
    runUntil([&] { return stretch.isOver(walk); }, stretch.longest);
    const double stall = walk.meter.longest();
    const QString outcome = outcomeOf(walk.dialog);
    const QString sentence = walk.dialog.run() ? walk.dialog.outcome().sentence : walk.problem;
    const Stopwatch clock;
    walk.dialog.done(QDialog::Rejected);
    const double closing = clock.milliseconds();
    const QJsonObject line{{QStringLiteral("stall"), stall},
                           {QStringLiteral("click"), walk.longestClick},
                           {QStringLiteral("closing"), walk.dialog.isVisible() ? 1e9 : closing},
                           {QStringLiteral("outcome"), outcome},
                           {QStringLiteral("sentence"), sentence}};
    std::puts(QJsonDocument(line).toJson(QJsonDocument::Compact).constData());
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv)
{
    prepareProcess();
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QStringList given = QCoreApplication::arguments();
    const auto* stretch = std::ranges::find_if(
        kStretches, [&](const Stretch& one) { return given.value(1) == QLatin1StringView(one.name); });
    if (given.size() != 6 || stretch == std::end(kStretches)) {
        std::fputs("usage: halvern-fault-walk WHAT PHOTO QUEUE OTHER TITLE\n", stderr);
        return 2;
    }
    PluginLoader panels({QFileInfo(QStringLiteral(HALVERN_TEST_BUNDLE)).path()});
    SessionRequest request{given[3], {}, {given[2]}};
    request.title = given[5];
    {
        DialogSession session(request, panels);
        PrintDialog dialog(session);
        Walk walk{session, dialog, given[4]};
        const auto tell = [&](const QString& sentence) { walk.problem = sentence; };
        QObject::connect(&session, &DialogSession::printerFailed, &dialog, tell);
        QObject::connect(&session.printerList(), &PrinterList::changed, &dialog, [&] {
            if (!session.printerList().problem().isEmpty())
                tell(session.printerList().problem());
        });
        dialog.show();
        walkThrough(*stretch, walk);
        waitForUnfinishedRun(dialog.run());
    }
    finishQueuedWork();
    return 0;
}
