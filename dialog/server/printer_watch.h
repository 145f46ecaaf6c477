// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/server/printer_list.h"
#include "dialog/server/printer_report.h"
#include "dialog/server/rounds.h"

namespace halvern {

/// What the selected printer tells of itself, kept up to date: through the server, whose worker looks out for
/// it together with the list, and, where the queue's device is a printer that speaks IPP, from the printer
/// itself by a worker that asks every few seconds. Main thread only, never waits.
class PrinterWatch : public QObject {
    Q_OBJECT

public:
    /// `list` outlives it.
    explicit PrinterWatch(PrinterList& list);
    ~PrinterWatch() override;

    /// Watches another queue from now on; without a URI of a printer only through the server.
    void watch(const QString& queue, const QString& deviceUri);

    /// Watches none; nothing is known any more, and nobody told.
    void leave();

    /// What is known by now.
    const PrinterReport& report() const { return report_; }

    /// Asks again now.
    void refresh();

Q_SIGNALS:
    void changed();

private:
    void askPrinterItself(const QString& deviceUri);
    void takeAnswer(const PrinterReport& report);
    void merge();

    PrinterList& list_;
    PrinterReport report_;
    PrinterReport printer_; ///< in its own words
    int failures_ = 0;      ///< of questions to the printer itself, one after the other
    cups::CancelFlag stop_;
    std::unique_ptr<Rounds> rounds_;
};

} // namespace halvern
