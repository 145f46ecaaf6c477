// SPDX-License-Identifier: MIT
#include "panel_base/base_panel.h"
#include "platform/plugin_api/host_callback.h"
#include "platform/printing/command_job.h"
#include "platform/printing/patience.h"
#include "platform/printing/printer.h"

namespace halvern {

void KSTRVLBasePDEHalvern::sendPrinterCommands(const QStringList& commands)
{
    // The mark of being busy comes with the watch, after several questions to the server: until then another
    // sender is held back by this one. Taken before the look at the mark, so that nobody slips in between.
    if (pdePluginDidUnload || isSendingCommands_.exchange(true))
        return;
    if (pdeUnloadSemaphore) {
        isSendingCommands_ = false;
        return;
    }
    // Taken back also if the work never runs, for want of a thread.
    const std::shared_ptr<KSTRVLBasePDEHalvern> sending(
        this, [self = shared_from_this()](auto*) { self->isSendingCommands_ = false; });
    cups::runPatiently([sending, commands] { sending->sendCommandJob(commands); });
}

void KSTRVLBasePDEHalvern::sendCommandJob(const QStringList& commands)
{
    const QString destination = destinationName().value_or(QString());
    // The questions take their time, and nobody wants the answer any more once the panel goes.
    if (activeJobIDForDesinationName(destination) != 0 || pdePluginDidUnload)
        return;
    CommandJob job(destination);
    job.send(commands);
    // Without a job too: the watch does not find it, and the caller learns of the failure by the usual road.
    waitForJobCompletion(job.id());
}

void KSTRVLBasePDEHalvern::dsendPrinterCommands(const QStringList& commands)
{
    if (const auto printer = pdePluginCallbackObject ? pdePluginCallbackObject->PMPrinter() : nullptr)
        cups::runPatiently([printer, text = commandFile(commands)] {
            printer->sendCommand(text, QStringLiteral("Status Check..."));
        });
}

} // namespace halvern
