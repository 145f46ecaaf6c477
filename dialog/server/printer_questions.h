// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/server/printer_report.h"
#include "platform/printing/cups_connection.h"

namespace halvern {

/// What a server or a printer may take for a report: it is asked again soon, and answers with little.
inline constexpr cups::Limits kReportLimits{std::chrono::seconds(3), std::chrono::seconds(3),
                                            2 * 1024 * 1024};

/// Where a printer itself can be asked.
struct PrinterPlace {
    cups::Host host;
    QByteArray resource;
    QByteArray uri;
};

/// Reads a queue's device URI; nothing if it names no printer that speaks IPP. A password in it is left out.
std::optional<PrinterPlace> printerPlace(const QString& deviceUri);

/// Asks the server for the queue's report, on the calling worker.
PrinterReport askQueue(cups::Connection& server, const QString& queue);

/// Asks the printer itself, on the calling worker.
PrinterReport askPrinter(cups::Connection& printer, const PrinterPlace& place);

} // namespace halvern
