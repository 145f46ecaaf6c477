#pragma once

#include <QString>
#include <QUrl>

#include <optional>

namespace halvern {

/// A printer that the dialog has selected: a CUPS queue. Immutable, any thread.
class Printer {
public:
    /// `id` is the queue name; `deviceUri` may be empty when the queue has none.
    Printer(QString id, QUrl deviceUri);
    virtual ~Printer() = default;

    /// PMPrinterGetID: the queue name.
    virtual std::optional<QString> id() const;

    /// PMPrinterCopyDeviceURI: the queue's device URI, nothing if it has none.
    virtual std::optional<QUrl> copyDeviceURI() const;

    /// PMPrinterSendCommand: sends a command file to the printer's queue as a job of the given title, without
    /// options. Blocks on the CUPS server. 0 when the job is in the queue, else kPrintingGeneralError.
    virtual int sendCommand(const QString& commands, const QString& title) const;

private:
    QString id_;
    QUrl deviceUri_;
};

} // namespace halvern
