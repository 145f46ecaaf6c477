#include "dialog/program/application.h"

#include "dialog/job/print_run.h"
#include "platform/foundation/threads/work_queue.h"

#include <QEventLoop>
#include <QLibraryInfo>
#include <QLocale>
#include <QTimer>

#include <cstring>

#include <syslog.h>
#include <unistd.h>

// A resource in a static library has to be asked for, outside any namespace.
static void initTranslations()
{
    Q_INIT_RESOURCE(dialog_translations);
}

namespace halvern {

namespace {

constexpr int kTakeBackMilliseconds = 3000;
constexpr int kLongestTidying = 3000; // milliseconds

QtMessageHandler usualHandler = nullptr;

void toSystemLog(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (context.category && std::strcmp(context.category, "halvern.pde") == 0)
        syslog(LOG_INFO, "%s", qUtf8Printable(text));
    else
        usualHandler(type, context, text);
}

// Panels' trace lines go to the terminal if there is one, else to the journal, so that they do not mix with
// what a script reads. Qt's own variable for that, QT_LOGGING_TO_CONSOLE, sends them to standard error all
// the same.
void routeLog()
{
    qSetMessagePattern(QStringLiteral("%{if-category}%{category}: %{endif}%{message}"));
    if (!isatty(STDERR_FILENO))
        sendTraceToSystemLog();
}

bool displayIsMissing = false;

} // namespace

void sendTraceToSystemLog()
{
    if (usualHandler || qEnvironmentVariableIntValue("QT_LOGGING_TO_CONSOLE") > 0)
        return;
    openlog("halvern-print", LOG_PID, LOG_USER);
    usualHandler = qInstallMessageHandler(toSystemLog);
}

void prepareProcess()
{
    routeLog();
    const bool hasDisplay =
        qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    displayIsMissing = !hasDisplay && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
    // Without it, Qt would end the program where it only has to say something, or to print without a window.
    if (displayIsMissing)
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

QString displayProblem()
{
    if (!displayIsMissing)
        return {};
    return QCoreApplication::translate("CommandLine", "There is no display to show the dialog on. Print with "
                                                      "--no-dialog, or set DISPLAY.");
}

QList<std::shared_ptr<QTranslator>> prepareApplication()
{
    initTranslations();
    QCoreApplication::setApplicationName(QStringLiteral("halvern-print"));
    QCoreApplication::setApplicationVersion(QStringLiteral(HALVERN_VERSION));
    QGuiApplication::setApplicationDisplayName(QString());
    QList<std::shared_ptr<QTranslator>> translators;
    const auto add = [&](const QString& name, const QString& folder) {
        auto translator = std::make_shared<QTranslator>();
        if (translator->load(QLocale(), name, QStringLiteral("_"), folder) &&
            QCoreApplication::installTranslator(translator.get()))
            translators.append(translator);
    };
    add(QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    add(QStringLiteral("dialog"), QStringLiteral(":/halvern/translations"));
    return translators;
}

void waitForUnfinishedRun(PrintRun* run)
{
    if (!run || run->isOver() || run->jobId() != 0)
        return;
    QEventLoop loop;
    QObject::connect(run, &PrintRun::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(kTakeBackMilliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

void finishQueuedWork()
{
    // Command jobs of panels that have gone are taken back by their watches.
    waitForWorkQueues(kLongestTidying);
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace halvern
