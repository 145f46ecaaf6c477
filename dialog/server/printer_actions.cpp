// SPDX-License-Identifier: MIT
#include "dialog/server/printer_actions.h"

#include "dialog/server/printer_report.h"
#include "platform/printing/cups_connection.h"
#include "platform/printing/cups_ppd.h"

#include <QCoreApplication>

namespace halvern {

namespace {

constexpr cups::Limits kLimits{std::chrono::seconds(5), std::chrono::seconds(5)};

struct PrinterActionsWords {
    Q_DECLARE_TR_FUNCTIONS(PrinterActions)
};

int operationOf(PrinterAction action)
{
    switch (action) {
    case PrinterAction::resume:
        return IPP_OP_RESUME_PRINTER;
    case PrinterAction::acceptJobs:
        return IPP_OP_CUPS_ACCEPT_JOBS;
    case PrinterAction::release:
        break;
    }
    return IPP_OP_RELEASE_HELD_NEW_JOBS;
}

} // namespace

QList<PrinterAction> helpfulActions(const PrinterReport& report)
{
    QList<PrinterAction> actions;
    if (report.state == PrinterState::stopped && report.reasons.contains(QStringLiteral("paused")))
        actions.append(PrinterAction::resume);
    if (!report.isAccepting.value_or(true))
        actions.append(PrinterAction::acceptJobs);
    if (report.reasons.contains(QStringLiteral("hold-new-jobs")))
        actions.append(PrinterAction::release);
    return actions;
}

QString actionText(PrinterAction action)
{
    switch (action) {
    case PrinterAction::resume:
        return PrinterActionsWords::tr("&Resume");
    case PrinterAction::acceptJobs:
        return PrinterActionsWords::tr("&Accept Jobs");
    case PrinterAction::release:
        break;
    }
    return PrinterActionsWords::tr("Re&lease");
}

QString act(PrinterAction action, const QString& queue)
{
    cups::Connection server(nullptr, kLimits);
    const cups::Ipp answer = server.request(cups::newRequest(operationOf(action), queue), "/admin/");
    if (!server.failed(answer))
        return {};
    const int status = answer ? ippGetStatusCode(answer.get()) : IPP_STATUS_OK;
    if (server.wasForbidden() || status == IPP_STATUS_ERROR_FORBIDDEN ||
        status == IPP_STATUS_ERROR_NOT_AUTHENTICATED || status == IPP_STATUS_ERROR_NOT_AUTHORIZED)
        return PrinterActionsWords::tr(
                   "The print server does not let you do that with \"%1\". Ask whoever looks after it.")
            .arg(queue);
    return server.error();
}

} // namespace halvern
