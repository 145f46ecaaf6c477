// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/server/state_reasons.h"
#include "platform/printing/cups_connection.h"

#include <QObject>
#include <QTimer>

#include <vector>

namespace halvern {

enum class PrinterState { idle, processing, stopped };

/// A print queue as the list shows it.
struct PrinterInfo {
    QString name;
    QString info; ///< the description that its administrator wrote; the name if there is none
    PrinterState state = PrinterState::idle;
    QStringList reasons;
    QString message; ///< the state in the printer's words; empty while it can print
    bool isAccepting = true;
    QString deviceUri;
    QString location;          ///< where it stands, by its administrator's words; may be empty
    QString makeAndModel;      ///< may be empty
    bool isDiscovered = false; ///< seen on the network, without a queue of its own yet

    bool operator==(const PrinterInfo&) const = default;
};

/// "Ready", "Paused: out of paper" and so on, in the user's language.
QString stateText(const PrinterInfo& printer);

/// How bad that is: an error keeps the printer from printing.
Severity stateSeverity(const PrinterInfo& printer);

/// The printer of somebody who named none and has no default of his own: the server's default, or the only
/// printer that there is; else empty.
QString usualPrinter(const QString& serverDefault, const std::vector<PrinterInfo>& printers);

/// The sentence for a queue name that is not among the server's; for an empty one, that somebody has to name
/// one.
QString unknownPrinterText(const QString& name, const std::vector<PrinterInfo>& printers);

/// What the server answered about its queues.
struct PrinterAnswer {
    std::vector<PrinterInfo> printers; ///< sorted by name
    QString defaultName;               ///< the server's default queue, empty if none
    QString problem;                   ///< the sentence if it could not be asked
};

/// Asks for all queues, with a few attributes each, on the calling worker.
PrinterAnswer askPrinters(const cups::CancelFlag& cancelled);

/// Printers on the network that have no queue yet, on the calling worker; takes up to `milliseconds`.
std::vector<PrinterInfo> discoverPrinters(int milliseconds, const cups::CancelFlag& cancelled);

/// The queues, and behind them the printers on the network that have none under their name.
std::vector<PrinterInfo> withDiscovered(std::vector<PrinterInfo> queues,
                                        const std::vector<PrinterInfo>& discovered);

/// The queues of the server, kept up to date every few seconds by workers, never waiting on the main thread.
/// Main thread only.
class PrinterList : public QObject {
    Q_OBJECT

public:
    explicit PrinterList(QObject* parent);
    ~PrinterList() override;

    /// Starts asking. Once.
    void start();

    /// Asks again now.
    void refresh();

    const std::vector<PrinterInfo>& printers() const { return printers_; }

    const QString& serverDefault() const { return serverDefault_; }

    const QString& problem() const { return problem_; }

    /// Whether the server has answered, or failed to, at least once.
    bool hasAnswer() const { return hasAnswer_; }

    /// Null if there is none of that name.
    const PrinterInfo* find(const QString& name) const;

Q_SIGNALS:
    /// Queues, states or the problem have changed; the first answer always counts.
    void changed();

private:
    void discover();
    void take(PrinterAnswer answer);

    std::vector<PrinterInfo> queues_;
    std::vector<PrinterInfo> discovered_;
    std::vector<PrinterInfo> printers_;
    QString serverDefault_;
    QString problem_;
    bool hasAnswer_ = false;
    bool isAsking_ = false;
    QTimer timer_;
    cups::CancelFlag stop_;
};

} // namespace halvern
