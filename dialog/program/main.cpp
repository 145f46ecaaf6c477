#include "dialog/program/application.h"
#include "dialog/program/batch_print.h"
#include "dialog/program/quit_signals.h"
#include "dialog/session/plugin_loader.h"
#include "dialog/window/print_dialog.h"

#include <QEventLoop>
#include <QTimer>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace {

using namespace halvern;

int runDialog(const CommandLine& line)
{
    if (const QString problem = displayProblem(); !problem.isEmpty()) {
        QTextStream(stderr) << problem << Qt::endl;
        return kExitFailed;
    }
    PluginLoader panels;
    DialogSession session(line.request, panels);
    PrintDialog dialog(session);
    dialog.show();
    session.start();
    onQuitSignal(&dialog, [&dialog] { dialog.done(QDialog::Rejected); });
    QObject::connect(&dialog, &QDialog::finished, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
    waitForUnfinishedRun(dialog.run());
    if (const QString problem = session.backLinesProblem(); !problem.isEmpty()) {
        QTextStream(stderr) << problem << Qt::endl;
        return kExitFailed;
    }
    if (quitWasSignalled())
        return kExitFailed;
    return dialog.outcome().printed || dialog.outcome().sentence.isEmpty() ? kExitPrinted : kExitFailed;
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
    QTimer::singleShot(0, &batch, &BatchPrint::start);
    loop.exec();
    return status;
}

int runListing(const ListPapersRequest& request)
{
    watchQuitSignals();
    sendTraceToSystemLog();
    QTextStream out(stdout);
    QTextStream err(stderr);
    const PluginLoader panels;
    return listPapers(request, panels, out, err);
}

int run(const CommandLine& line)
{
    if (line.listPapers)
        return runListing(*line.listPapers);
    return line.showDialog ? runDialog(line) : runBatch(line);
}

// A full disk, or a pipe that nobody reads any more.
int statusWithOutput(int status)
{
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
        return status;
    QTextStream(stderr) << QCoreApplication::translate("CommandLine", "The output could not be written: %1.")
                               .arg(QString::fromLocal8Bit(std::strerror(errno)))
                        << Qt::endl;
    return kExitFailed;
}

} // namespace

int main(int argc, char** argv)
{
    prepareProcess();
    QApplication app(argc, argv);
    const QList<std::shared_ptr<QTranslator>> translators = prepareApplication();
    const ParsedCommandLine parsed = parseCommandLine(QCoreApplication::arguments());
    if (!parsed.commandLine) {
        QTextStream(parsed.status == kExitPrinted ? stdout : stderr) << parsed.text << Qt::endl;
        return parsed.status;
    }
    for (const QString& remark : parsed.remarks)
        QTextStream(stderr) << remark << Qt::endl;
    const int status = statusWithOutput(run(*parsed.commandLine));
    finishQueuedWork();
    return status;
}
