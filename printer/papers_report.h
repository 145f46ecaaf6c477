// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace halvern {

struct ReportResult {
    /// What the filter writes to its standard error; empty on failure.
    QByteArray lines;
    /// Why the list cannot be reported.
    QString failure;
};

/// The report of a printer that has these papers loaded (papers/README.md), made at the time `now` in seconds
/// since 1970: the lines by which CUPS writes the time stamp, the catalogue and the abilities into the
/// queue's PPD. A garbled report has half of the catalogue only.
ReportResult papersReport(const QByteArray& list, double now, bool garbled);

} // namespace halvern
