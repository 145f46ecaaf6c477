// SPDX-License-Identifier: MIT
#include "dialog/program/application.h"

#include "dialog/job/pdf_output.h"
#include "dialog/job/print_run.h"
#include "dialog/program/exit_status.h"
#include "dialog/program/take_back.h"
#include "dialog/window/translations.h"
#include "platform/foundation/display_text.h"
#include "platform/foundation/threads/work_queue.h"
#include "platform/toolkit/accessible_controls.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QEventLoop>
#include <QIcon>
#include <QTimer>

#include <atomic>
#include <cstring>
#include <utility>

#include <syslog.h>
#include <unistd.h>

namespace halvern {

namespace {

constexpr int kNoticeMilliseconds = 3000;
constexpr int kLongestTidying = 3000; // milliseconds

QtMessageHandler usualHandler = nullptr;
std::atomic<bool> traceGoesToSystemLog = false;

// Lines name queues, options and texts that others chose.
void takeLogLine(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    const QString line = terminalText(text);
    if (traceGoesToSystemLog && context.category && std::strcmp(context.category, "halvern.pde") == 0)
        syslog(LOG_INFO, "%s", qUtf8Printable(line));
    else
        usualHandler(type, context, line);
}

// Panels' trace lines go to the terminal if there is one, else to the journal, so that they do not mix with
// what a script reads. Qt's own variable for that, QT_LOGGING_TO_CONSOLE, sends them to standard error all
// the same.
void routeLog()
{
    qSetMessagePattern(QStringLiteral("%{if-category}%{category}: %{endif}%{message}"));
    usualHandler = qInstallMessageHandler(takeLogLine);
    if (!isatty(STDERR_FILENO))
        sendTraceToSystemLog();
}

bool displayIsMissing = false;

QtMessageHandler handlerBeforeApplication = nullptr;
QString displayComplaint;

// The toolkit ends a program whose display does not work by abort(), in the application object's constructor.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type == QtFatalMsg) {
        writeLine(stderr,
                  translatedEarly(
                      "Application",
                      QT_TRANSLATE_NOOP("Application",
                                        "The display cannot be used: %1. Print with --no-dialog, or set "
                                        "DISPLAY to one that works."))
                      .arg(displayComplaint));
        _exit(kExitFailed);
    }
    const bool isAboutDisplay = context.category && std::strncmp(context.category, "qt.qpa", 6) == 0;
    if (!isAboutDisplay && handlerBeforeApplication)
        handlerBeforeApplication(type, context, text);
    else if (displayComplaint.isEmpty())
        displayComplaint = text;
}

} // namespace

void sendTraceToSystemLog()
{
    if (traceGoesToSystemLog || qEnvironmentVariableIntValue("QT_LOGGING_TO_CONSOLE") > 0)
        return;
    openlog("halvern-print", LOG_PID, LOG_USER);
    traceGoesToSystemLog = true;
}

void prepareProcess(bool showsWindow)
{
    routeLog();
    const bool hasDisplay =
        qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    displayIsMissing = showsWindow && !hasDisplay && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
    if (displayIsMissing || !showsWindow) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        // A desktop's theme would open the display by itself.
        qunsetenv("QT_QPA_PLATFORMTHEME");
        return;
    }
    handlerBeforeApplication = qInstallMessageHandler(endWithoutDisplay);
}

QString displayProblem()
{
    if (!displayIsMissing)
        return {};
    return QCoreApplication::translate("Application", "There is no display to show the dialog on. Print with "
                                                      "--no-dialog, or set DISPLAY.");
}

QList<std::shared_ptr<QTranslator>> prepareApplication()
{
    if (handlerBeforeApplication)
        qInstallMessageHandler(std::exchange(handlerBeforeApplication, nullptr));
    installAccessibleControls();
    QCoreApplication::setApplicationName(QStringLiteral("halvern-print"));
    QCoreApplication::setApplicationVersion(QStringLiteral(HALVERN_VERSION));
    QGuiApplication::setApplicationDisplayName(QString());
    QGuiApplication::setDesktopFileName(QStringLiteral("halvern-print"));
    QGuiApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("halvern-print")));
    return installTranslations();
}

bool waitForUnfinishedRun(PrintRun* run)
{
    if (!run || run->isOver() || run->jobId() != 0)
        return false;
    QEventLoop loop;
    QObject::connect(run, &PrintRun::submitted, &loop, &QEventLoop::quit);
    QObject::connect(run, &PrintRun::finished, &loop, &QEventLoop::quit);
    QTimer patience;
    patience.setSingleShot(true);
    QObject::connect(&patience, &QTimer::timeout, &loop, &QEventLoop::quit);
    const auto limit = [&patience] { patience.start(kTakeBackMilliseconds); };
    QObject::connect(run, &PrintRun::cancelling, &loop, limit);
    if (run->isCancelled())
        limit();
    loop.exec();
    return true;
}

QString waitForUnfinishedFile(PdfOutput* file)
{
    if (!file)
        return {};
    QString problem;
    QEventLoop loop;
    QObject::connect(file, &PdfOutput::finished, &loop, [&](const PdfOutcome& outcome) {
        problem = outcome.isWritten || outcome.wasCancelled ? QString() : outcome.sentence;
        loop.quit();
    });
    loop.exec();
    return problem;
}

void tellAfterwards(const QString& sentence)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("/org/freedesktop/Notifications"),
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
    const QString title = QCoreApplication::translate("Application", "Printing");
    // The body is markup.
    call.setArguments({QCoreApplication::applicationName(), 0U, QStringLiteral("printer"), title,
                       displayText(sentence).toHtmlEscaped(), QStringList(), QVariantMap(), -1});
    const QDBusMessage answer = QDBusConnection::sessionBus().call(call, QDBus::Block, kNoticeMilliseconds);
    if (answer.type() != QDBusMessage::ReplyMessage)
        writeLine(stderr, sentence);
}

void finishQueuedWork()
{
    // Command jobs of panels that have gone are taken back by their watches.
    waitForWorkQueues(kLongestTidying);
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace halvern
