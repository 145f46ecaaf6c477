// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

namespace halvern {

struct PrinterReport;

/// What somebody can do about a queue that does not print.
enum class PrinterAction {
    resume,     ///< a paused one
    acceptJobs, ///< one that takes none
    release,    ///< one that holds what is new
};

/// What would help this one, by what it tells. Whether the user may is the server's word.
QList<PrinterAction> helpfulActions(const PrinterReport& report);

/// The button's words, with its key.
QString actionText(PrinterAction action);

/// Has the server do it, on the calling worker. A sentence if it was not done.
QString act(PrinterAction action, const QString& queue);

} // namespace halvern
