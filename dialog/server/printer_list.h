// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/server/printer_report.h"
#include "dialog/server/rounds.h"
#include "dialog/server/state_reasons.h"
#include "platform/printing/cups_connection.h"

#include <QObject>

#include <vector>

namespace halvern {

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
    bool isTemporary = false;  ///< a queue that the server has made for one that was found, and drops again
    QString uuid;              ///< empty: not told
    QStringList members;       ///< of a class: its queues
    bool isSilent = false;     ///< the printer itself does not answer
    QString low;               ///< which of its supplies are low, in words

    bool operator==(const PrinterInfo&) const = default;
};

/// "Ready", "Paused: out of paper" and so on, in the user's language.
QString stateText(const PrinterInfo& printer);

/// The same printer with what is known of its state by the report, which knows more of one than a list.
PrinterInfo withReport(PrinterInfo printer, const PrinterReport& report);

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
PrinterAnswer askPrinters(cups::Connection& server);

/// So long they are looked for: they have to be asked to show themselves.
inline constexpr int kDiscoveryMilliseconds = 3000;

/// Printers on the network that have no queue yet, on the calling worker; takes up to `milliseconds`.
std::vector<PrinterInfo> discoverPrinters(int milliseconds, const cups::CancelFlag& cancelled);

/// The UUID in a URN or in the options of a device URI, in small letters; empty if there is none.
QString uuidIn(const QString& text);

/// The queues, the lasting ones first, and behind them the printers on the network that have none: none with
/// their UUID, with their URI, or under their name.
std::vector<PrinterInfo> withDiscovered(std::vector<PrinterInfo> queues,
                                        const std::vector<PrinterInfo>& discovered);

/// The queues of the server, kept up to date by one worker with one connection, never waiting on the main
/// thread. The server is asked for all of them only when it has told of an event, or, if it grants no
/// subscription, every few seconds. Main thread only.
class PrinterList : public QObject {
    Q_OBJECT

public:
    explicit PrinterList(QObject* parent);
    ~PrinterList() override;

    /// Starts asking. Once.
    void start();

    /// Asks again now.
    void refresh();

    /// Has this queue's report asked for, too; empty: none.
    void watch(const QString& queue);

    /// Of the watched queue, in the server's words.
    const PrinterReport& report() const { return report_; }

    const std::vector<PrinterInfo>& printers() const { return printers_; }

    const QString& serverDefault() const { return serverDefault_; }

    const QString& problem() const { return problem_; }

    /// Whether the server has answered, or failed to, at least once.
    bool hasAnswer() const { return hasAnswer_; }

    /// Whether the network has been looked through at least once.
    bool hasLookedRound() const { return hasLookedRound_; }

    /// Null if there is none of that name.
    const PrinterInfo* find(const QString& name) const;

Q_SIGNALS:
    /// Queues, states or the problem have changed; the first answer always counts.
    void changed();
    /// So has the watched queue's report.
    void reportChanged();

private:
    struct Line;

    void discover();
    void take(PrinterAnswer answer);
    void takeReport(const QString& queue, const PrinterReport& report);

    std::vector<PrinterInfo> queues_;
    std::vector<PrinterInfo> discovered_;
    std::vector<PrinterInfo> printers_;
    QString serverDefault_;
    QString problem_;
    bool hasAnswer_ = false;
    bool hasLookedRound_ = false;
    PrinterReport report_;
    cups::CancelFlag stop_;
    std::shared_ptr<Line> line_;
    std::unique_ptr<Rounds> rounds_;
};

} // namespace halvern
