// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/tray_paper.h"
#include "dialog/server/supply.h"

#include <QDateTime>
#include <QStringList>

#include <optional>

namespace halvern {

enum class PrinterState { idle, processing, stopped };

/// What a printer says of itself now, or a server of its queue. Nothing of it is trusted: texts are cut and
/// fit for a screen, numbers are within bounds, lists end. A value; all of this on any thread.
struct PrinterReport {
    bool isThere = false; ///< it has answered
    bool isOwn = false;   ///< the printer itself has, not only its server
    PrinterState state = PrinterState::idle;
    QStringList reasons; ///< keywords, without "none"
    QString message;
    std::optional<QDateTime> since; ///< when its state changed
    std::optional<bool> isAccepting;
    int jobs = 0; ///< on the queue
    QList<TrayPaper> trays;
    QList<Supply> supplies;
    QStringList members;   ///< of a class: its queues
    bool isCut = false;    ///< it told more than is kept
    bool isSilent = false; ///< the printer itself does not answer
    QString problem;       ///< the sentence if it could not be asked

    bool operator==(const PrinterReport&) const = default;
};

/// What has to be asked for.
const QList<QByteArray>& reportAttributes();

/// Reads an answer. A server that speaks for a queue makes papers up where it knows none; those tell neither
/// tray nor type, and are left out unless it `isPrinter` itself that speaks.
PrinterReport readReport(_ipp_s* answer, bool isPrinter);

/// Those of a queue's reasons that its server gives by itself, and, while it sends a job, what it finds on
/// the way. The others are what its driver has heard of the printer during the last job.
QStringList reasonsOfServer(const QStringList& reasons, PrinterState state);

/// The server's report of the queue, with what the printer itself knows better. Either may be missing.
PrinterReport merged(const PrinterReport& queue, const PrinterReport& printer);

} // namespace halvern
