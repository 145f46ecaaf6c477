// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/server/printer_place.h"
#include "dialog/server/printer_report.h"
#include "platform/printing/cups_connection.h"

namespace halvern {

/// What a server or a printer may take for a report: it is asked again soon, and answers with little.
inline constexpr cups::Limits kReportLimits{std::chrono::seconds(3), std::chrono::seconds(3),
                                            2 * 1024 * 1024};

/// Asks the server for the queue's report, on the calling worker.
PrinterReport askQueue(cups::Connection& server, const QString& queue);

/// A question to the printer itself, in which the user's name is not.
cups::Ipp newQuestion(const PrinterPlace& place);

/// The sentence why a printer has not answered as it should.
QString whyNoAnswer(const cups::Connection& printer);

/// Asks the printer itself, on the calling worker.
PrinterReport askPrinter(cups::Connection& printer, const PrinterPlace& place);

} // namespace halvern
