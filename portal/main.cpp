// SPDX-License-Identifier: MIT
#include "dialog/session/quit_signals.h"
#include "dialog/window/translations.h"
#include "platform/foundation/display_text.h"
#include "platform/foundation/threads/work_queue.h"
#include "platform/toolkit/accessible_controls.h"
#include "portal/document_spool.h"
#include "portal/front_end.h"
#include "portal/print_service.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>

#include <cstdio>

namespace {

using namespace halvern;

constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;
constexpr int kLongestTidying = 3000; // milliseconds

struct MainWords {
    Q_DECLARE_TR_FUNCTIONS(PortalProgram)
};

struct Switches {
    QCommandLineOption check{
        QStringLiteral("check"),
        MainWords::tr("Say whether the desktop's portal would choose this program for printing, and "
                      "if not, why.")};
    QCommandLineOption enable{
        QStringLiteral("enable"),
        MainWords::tr("Have the desktop's portal choose this program for printing, by a line in "
                      "your portals.conf.")};
    QCommandLineOption disable{QStringLiteral("disable"), MainWords::tr("Take that line away again.")};
};

QtMessageHandler usualHandler = nullptr;

// Lines name queues, options and texts that others chose.
void takeLogLine(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    usualHandler(type, context, terminalText(text));
}

int tell(const FrontEndAnswer& answer)
{
    writeLine(answer.isYes ? stdout : stderr, answer.sentence);
    return answer.isYes ? 0 : kFailed;
}

bool asksForWindow(int argc, char** argv)
{
    return argc == 1 || (argc == 3 && QByteArrayView(argv[1]) == "--idle");
}

int serve(std::chrono::milliseconds idle)
{
    QApplication::setQuitOnLastWindowClosed(false);
    PrintService service({idle});
    if (const QString problem = service.enter(); !problem.isEmpty()) {
        writeLine(stderr, problem);
        return kFailed;
    }
    removeOldSpools();
    QObject::connect(&service, &PrintService::over, qApp, &QCoreApplication::quit);
    onQuitSignal(&service, [&service] { service.end(); });
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    usualHandler = qInstallMessageHandler(takeLogLine);
    const bool hasDisplay = qEnvironmentVariableIsSet("DISPLAY") ||
                            qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
                            qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
    const bool isService = asksForWindow(argc, argv);
    if (!isService || !hasDisplay) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        // A desktop's theme would open the display by itself.
        qunsetenv("QT_QPA_PLATFORMTHEME");
    }
    QApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("halvern-print-portal"));
    QCoreApplication::setApplicationVersion(QStringLiteral(HALVERN_VERSION));
    QGuiApplication::setApplicationDisplayName(QString());
    QGuiApplication::setDesktopFileName(QStringLiteral("halvern-print"));
    QGuiApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("halvern-print")));
    installAccessibleControls();
    const QList<std::shared_ptr<QTranslator>> translators = installTranslations();
    const Switches switches;
    QCommandLineParser parser;
    QCommandLineOption idle(QStringLiteral("idle"), QString(), QStringLiteral("MILLISECONDS"),
                            QStringLiteral("60000"));
    idle.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.setApplicationDescription(
        MainWords::tr("Shows the print dialog for applications that print by the desktop's "
                      "portal. The desktop starts it by itself."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({switches.check, switches.enable, switches.disable, idle});
    if (!parser.parse(QCoreApplication::arguments()) || !parser.positionalArguments().isEmpty()) {
        writeLine(stderr, MainWords::tr("Wrong usage. See \"halvern-print-portal --help\"."));
        return kWrongUsage;
    }
    if (parser.isSet(QStringLiteral("help"))) {
        QTextStream out(stdout);
        writeLines(out, parser.helpText());
        return 0;
    }
    if (parser.isSet(QStringLiteral("version"))) {
        writeLine(stdout, QStringLiteral("halvern-print-portal ") + QCoreApplication::applicationVersion());
        return 0;
    }
    if (parser.isSet(switches.check))
        return tell(checkFrontEnd());
    if (parser.isSet(switches.enable))
        return tell(enableInFrontEnd());
    if (parser.isSet(switches.disable))
        return tell(disableInFrontEnd());
    if (!hasDisplay) {
        writeLine(stderr, MainWords::tr(
                              "There is no display to show the dialog on. Start this program in a desktop's "
                              "session, or set DISPLAY."));
        return kFailed;
    }
    const int status = serve(std::chrono::milliseconds(parser.value(idle).toInt()));
    // Documents whose last word is still to be delivered have files.
    waitForWorkQueues(kLongestTidying);
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return status;
}
