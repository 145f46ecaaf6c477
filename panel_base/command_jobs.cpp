#include "panel_base/base_panel.h"
#include "panel_base/command_file.h"
#include "platform/plugin_api/host_callback.h"
#include "platform/printing/jobs.h"
#include "platform/printing/printer.h"

namespace halvern {

QString commandFile(const QStringList& commands)
{
    return QStringLiteral("#CUPS-COMMAND\n%1\n").arg(commands.join(QLatin1Char('\n')));
}

void KSTRVLBasePDEHalvern::sendPrinterCommands(const QStringList& commands)
{
    const QString destination = destinationName().value_or(QString());
    if (pdePluginDidUnload || pdeUnloadSemaphore)
        return;
    if (activeJobIDForDesinationName(destination) != 0)
        return;
    jobs::Server server;
    const int job = server.createJob(destination, QStringLiteral("Updating status ..."));
    if (job > 0)
        server.sendDocument(destination, job, QStringLiteral("CommandJob"), jobs::kCommandFormat,
                            commandFile(commands).toUtf8());
    // Without a job too: the watch does not find it, and the caller learns of the failure by the usual road.
    waitForJobCompletion(job);
}

void KSTRVLBasePDEHalvern::dsendPrinterCommands(const QStringList& commands)
{
    if (const auto printer = pdePluginCallbackObject ? pdePluginCallbackObject->pmPrinter() : nullptr)
        printer->sendCommand(commandFile(commands), QStringLiteral("Status Check..."));
}

} // namespace halvern
