// SPDX-License-Identifier: MIT
#include "dialog/job/pdf_output.h"
#include "dialog/photo/decoder_process.h"
#include "dialog/program/application.h"
#include "dialog/program/batch_print.h"
#include "dialog/program/completion.h"
#include "dialog/program/dialog_result.h"
#include "dialog/program/terminal_questions.h"
#include "dialog/session/plugin_loader.h"
#include "dialog/session/quit_signals.h"
#include "dialog/window/photo_adding.h"
#include "dialog/window/print_dialog.h"
#include "dialog/window/translations.h"
#include "platform/foundation/display_text.h"

#include <QEventLoop>
#include <QTimer>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>

#include <unistd.h>

namespace {

using namespace halvern;

constexpr unsigned kLongestCompletion = 2; // seconds

int statusOf(PrintDialog& dialog)
{
    // Of a run that was stopped, and whose server kept silent, nobody knows.
    if (dialog.isRunning())
        return dialog.run()->isCancelled() && dialog.run()->jobId() == 0 ? kExitUnknown : kExitUnfinished;
    const PrintOutcome& outcome = dialog.outcome();
    if (outcome.isLeft)
        return kExitUnfinished;
    const bool isCancelled = outcome.sentence.isEmpty() || outcome.stage == JobStage::cancelled;
    // Whoever cancels a second run has printed the first.
    if (outcome.printed || (isCancelled && dialog.hasPrinted()))
        return kExitPrinted;
    if (outcome.isEndUnknown())
        return kExitUnknown;
    return isCancelled ? kExitCancelled : kExitFailed;
}

int runDialog(const CommandLine& line)
{
    if (const QString problem = displayProblem(); !problem.isEmpty()) {
        writeLine(stderr, problem);
        return kExitFailed;
    }
    // The job may still be on its way when the window has gone.
    QApplication::setQuitOnLastWindowClosed(false);
    SessionRequest request = line.request;
    if (request.files.isEmpty())
        request.files = PhotoAdding::askForFirst();
    if (request.files.isEmpty())
        return kExitCancelled;
    PluginLoader panels;
    DialogSession session(request, panels);
    PrintDialog dialog(session);
    const std::shared_ptr<QWindow> parent = line.parent ? putOver(&dialog, *line.parent, true) : nullptr;
    DialogResult result(session, dialog);
    dialog.show();
    session.start();
    onQuitSignal(&dialog, [&dialog] {
        // Whoever ends the program wants no half of a job; what the server has, it prints.
        if (dialog.isRunning() && dialog.run()->jobId() == 0)
            dialog.run()->stop();
        if (dialog.unfinishedFile())
            dialog.unfinishedFile()->cancel();
        if (dialog.isVisible())
            dialog.done(QDialog::Rejected);
    });
    QObject::connect(&dialog, &QDialog::finished, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
    const bool wasClosedEarly = waitForUnfinishedRun(dialog.run());
    const QString fileProblem = waitForUnfinishedFile(dialog.unfinishedFile());
    if (!fileProblem.isEmpty())
        tellAfterwards(fileProblem);
    const QString backProblem = session.backLinesProblem();
    if (!backProblem.isEmpty())
        writeLine(stderr, backProblem);
    int status = statusOf(dialog);
    if (!fileProblem.isEmpty() || (status == kExitCancelled && !backProblem.isEmpty()))
        status = kExitFailed;
    if (line.resultJson)
        writeLine(stdout, QString::fromUtf8(result.json(status)));
    if (wasClosedEarly && status == kExitFailed)
        tellAfterwards(dialog.outcome().sentence);
    return status;
}

int runBatch(const CommandLine& line)
{
    QTextStream out(stdout);
    QTextStream err(stderr);
    PluginLoader panels;
    BatchPrint batch(line, panels, out, err);
    int status = kExitFailed;
    QEventLoop loop;
    QObject::connect(&batch, &BatchPrint::finished, &loop, [&](int exitStatus) {
        status = exitStatus;
        loop.quit();
    });
    onQuitSignal(&batch, [&batch] { batch.leave(); });
    QTimer::singleShot(0, &batch, &BatchPrint::start);
    loop.exec();
    return status;
}

int list(const CommandLine& line)
{
    sendTraceToSystemLog();
    QTextStream out(stdout);
    QTextStream err(stderr);
    if (line.listJobs)
        return listJobs(*line.listJobs, out, err);
    if (!line.listPapers)
        return writeListing(line.listing, line.request, out, err);
    const PluginLoader panels;
    return listPapers(*line.listPapers, panels, out, err);
}

int runListing(const CommandLine& line)
{
    watchQuitSignals();
    const int status = list(line);
    return status == kExitFailed && quitWasSignalled() ? kExitCancelled : status;
}

// Without a window: who is at a terminal is asked there.
int runUnseen(const CommandLine& line)
{
    cups::Access& access = cups::Access::shared();
    access.addQuestions(std::make_shared<TerminalQuestions>());
    const int status = line.listing.what != Listing::none ? runListing(line) : runBatch(line);
    return status == kExitFailed && access.lacksLogin() && !quitWasSignalled() ? int(kExitLogin) : status;
}

int run(const CommandLine& line)
{
    if (!line.request.server.isEmpty())
        qputenv("CUPS_SERVER", line.request.server.toUtf8());
    return line.listing.what == Listing::none && line.showDialog ? runDialog(line) : runUnseen(line);
}

// A full disk, or a pipe that nobody reads any more.
int statusWithOutput(int status)
{
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
        return status;
    writeLine(stderr, QCoreApplication::translate("Main", "The output could not be written: %1.")
                          .arg(QString::fromLocal8Bit(std::strerror(errno))));
    return kExitFailed;
}

// A shell waits for it at each press of a key, whatever becomes of the print server.
int runCompletion(int argc, char** argv)
{
    std::signal(SIGALRM, [](int) { _exit(kExitFailed); });
    alarm(kLongestCompletion);
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("halvern-print"));
    const QList<std::shared_ptr<QTranslator>> translators = installTranslations();
    QTextStream out(stdout);
    return writeCompletion(QCoreApplication::arguments().mid(2), out);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 1 && std::strcmp(argv[1], "--complete") == 0)
        return runCompletion(argc, argv);
    QStringList given;
    for (int i = 0; i < argc; ++i)
        given.append(QString::fromLocal8Bit(argv[i]));
    const bool showsWindow = asksForWindow(given);
    prepareProcess(showsWindow);
    // It gets ready while the window does.
    std::optional<DecoderLease> decoders;
    if (showsWindow)
        decoders.emplace();
    QApplication app(argc, argv);
    const QList<std::shared_ptr<QTranslator>> translators = prepareApplication();
    const ParsedCommandLine parsed = parseCommandLine(QCoreApplication::arguments());
    if (!parsed.commandLine) {
        QTextStream out(parsed.status == kExitPrinted ? stdout : stderr);
        writeLines(out, parsed.text);
        return parsed.status;
    }
    for (const QString& remark : parsed.remarks)
        writeLine(stderr, remark);
    const int status = statusWithOutput(run(*parsed.commandLine));
    finishQueuedWork();
    return status;
}
