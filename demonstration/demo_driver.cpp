// SPDX-License-Identifier: MIT
// Opens the print dialog as halvern-print does and works it like a user, step by step, from a file of steps.
// For demonstrations and end-to-end checks on machines without a display.
#include "demonstration/demo_steps.h"
#include "dialog/program/application.h"
#include "dialog/program/command_line.h"
#include "dialog/session/plugin_loader.h"
#include "dialog/window/print_dialog.h"

#include <QDir>
#include <QFile>
#include <QTextStream>

namespace {

using namespace halvern;

constexpr char kUsage[] =
    "usage: halvern-print-demo STEPS-FILE SCREENS-FOLDER [options of halvern-print] FILE...\n"
    "A step a line: ready | page ID | click TARGET | type TARGET TEXT | choose TARGET CHOICE | slide TARGET "
    "VALUE\n"
    "| shown TARGET [TEXT] | gone TARGET | offers TARGET CHOICE | lacks TARGET CHOICE | run COMMAND\n"
    "| screenshot NAME [TARGET] | print | dark | close. TARGET is name:OBJECT-NAME or tag:NUMBER, CHOICE a "
    "value, "
    "a text or #ROW. # begins a comment.\n"
    "shown, gone, offers and lacks wait until it is so; run waits until the shell command has ended.\n";

QStringList readSteps(const QString& path)
{
    QStringList steps;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return steps;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        if (!line.isEmpty() && !line.startsWith(QLatin1Char('#')))
            steps.append(line);
    }
    return steps;
}

int drive(const SessionRequest& request, const QStringList& steps, const QString& screens)
{
    QTextStream out(stdout);
    QTextStream err(stderr);
    PluginLoader panels;
    DialogSession session(request, panels);
    PrintDialog dialog(session);
    dialog.resize(1240, 780); // as on a usual screen, which the offscreen one is not
    dialog.show();
    session.start();
    DemoSteps demo(dialog, session, screens, out);
    for (const QString& step : steps) {
        const QString problem = demo.run(step);
        if (!problem.isEmpty()) {
            err << "Step \"" << step << "\" failed: " << problem << Qt::endl;
            return kExitFailed;
        }
    }
    return kExitPrinted;
}

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    prepareProcess();
    QApplication app(argc, argv);
    const QList<std::shared_ptr<QTranslator>> translators = prepareApplication();
    QTextStream err(stderr);
    QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 4) {
        err << kUsage << Qt::flush;
        return kExitUsage;
    }
    const QStringList steps = readSteps(arguments.takeAt(1));
    const QString screens = arguments.takeAt(1);
    const ParsedCommandLine parsed = parseCommandLine(arguments);
    if (!parsed.commandLine || steps.isEmpty() || !QDir().mkpath(screens)) {
        err << (parsed.commandLine
                    ? QStringLiteral("The steps cannot be read, or the folder for the screens not made.")
                    : parsed.text)
            << Qt::endl;
        return kExitUsage;
    }
    const int status = drive(parsed.commandLine->request, steps, screens);
    finishQueuedWork();
    return status;
}
