// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QString>
#include <QVariant>

#include <memory>

struct ppd_file_s;
using ppd_file_t = ppd_file_s;

namespace HALVERN_EXPORT halvern {

class PageFormat;
class PrintSession;
class PrintSettings;
class Printer;

/// The object through which a panel talks to the print dialog. The dialog makes one for all panels of a
/// printer.
///
/// Main thread only, except PMPrinter(), which background waits call too. The panels share ownership of it,
/// so it may outlive the dialog: it then answers null pointers and refusals.
class HostCallback {
public:
    virtual ~HostCallback() = default;

    /// ppdFile: the open PPD of the selected printer with the dialog's marks; null if none. Panels keep the
    /// pointer: what this has once answered stays open as long as the callback object lives.
    virtual ppd_file_t* ppdFile() = 0;

    /// Whether the host can check and mark choices itself, that is, answers
    /// willChangePPDOptionKeyValue:ppdChoice:. A host that says no gets the legacy path.
    virtual bool respondsToWillChangePPDOptionKeyValue() const = 0;

    /// willChangePPDOptionKeyValue:ppdChoice: marks `choice` for `key`, resolving constraints. False:
    /// refused, and nothing has changed.
    virtual bool willChangePPDOptionKeyValue_ppdChoice(const QString& key, const QVariant& choice) = 0;

    /// printSettings: the job's settings, kept as long as the printer is selected; null if the dialog has
    /// none.
    virtual std::shared_ptr<PrintSettings> printSettings() = 0;

    /// pageFormat: the job's page format; null if the dialog has none.
    virtual std::shared_ptr<PageFormat> pageFormat() = 0;

    /// PMPrinter: the selected printer, null if none. Any thread.
    virtual std::shared_ptr<Printer> PMPrinter() = 0;

    /// printSession: legacy hosts only; others answer null.
    virtual std::shared_ptr<PrintSession> printSession() { return nullptr; }
};

} // namespace halvern
