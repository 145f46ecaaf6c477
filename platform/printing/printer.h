// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QString>

#include <optional>

namespace HALVERN_EXPORT halvern {

/// A printer that the dialog has selected: a CUPS queue. Immutable, any thread.
class Printer {
public:
    /// `id` is the queue name; `deviceUri` is the text that CUPS has for it, empty when the queue has none.
    Printer(QString id, QString deviceUri);
    virtual ~Printer() = default;

    /// PMPrinterGetID: the queue name.
    virtual std::optional<QString> id() const;

    /// PMPrinterCopyDeviceURI: the queue's device URI, to the letter, because others compare it as a text (a
    /// host name in capitals or with escapes is common in them); nothing if it has none.
    virtual std::optional<QString> copyDeviceURI() const;

    /// PMPrinterSendCommand: sends a command file to the printer's queue as a job of the given title, without
    /// options. Blocks on the CUPS server. 0 when the job is in the queue, else kPrintingGeneralError.
    virtual int sendCommand(const QString& commands, const QString& title) const;

private:
    QString id_;
    QString deviceUri_;
};

} // namespace halvern
