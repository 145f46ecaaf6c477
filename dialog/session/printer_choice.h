// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/ppd_model.h"
#include "dialog/options/preset_file.h"
#include "dialog/options/printer_offer.h"
#include "dialog/server/printer_list.h"
#include "dialog/server/queue_ppd.h"
#include "dialog/session/session_request.h"

#include <QObject>

namespace halvern {

/// What a worker brought of a selected printer.
struct FetchedPrinter {
    QueuePpd ppd;
    std::shared_ptr<PpdModel> model; ///< null if there is no PPD; ppd.problem then says why
    PrinterOffer offer;
    KeptPresets presets;
};

/// Which of the server's printers a dialog prints on, and the fetching of what it is. Main thread only, never
/// waits: workers ask the server, and nothing comes of a printer that is not the selected one any more.
class PrinterChoice : public QObject {
    Q_OBJECT

public:
    /// `request` outlives it.
    explicit PrinterChoice(const SessionRequest& request);

    /// Starts to load the printers, and the wanted one if somebody named one.
    void start();

    PrinterList& list() { return *printers_; }

    /// Empty while none is selected.
    const QString& name() const { return printerName_; }

    /// What the user saved for the selected printer, or for the instance of it that the dialog started with.
    OptionValues savedOptions() const;

    const SavedOptions& saved() const { return saved_; }

    /// The URI from which the selected printer's queue is made, for as long as it is used; empty for others.
    const QString& madeFrom() const { return madeFrom_; }

    /// The instance of the selected printer whose saved options count; empty if none does.
    QString instance() const;

    /// Selects a queue and fetches its PPD; fetched() follows. Selecting the selected one again does nothing,
    /// unless its PPD is not there.
    void select(const QString& name);

    /// Reads again what the selected printer has loaded; offerRead() follows if it could be read.
    void readOfferAgain();

Q_SIGNALS:
    /// Another printer is about to be selected.
    void leaving();
    void selected(const QString& name);
    void fetched(const halvern::FetchedPrinter& printer);
    void offerRead(const halvern::PrinterOffer& offer);
    void notice(const QString& sentence);

private:
    QString originOf(const QString& name) const;
    void noteOrigin();
    void noteDriver();
    void takePrinters();
    void takePpd(const FetchedPrinter& printer);

    const SessionRequest& request_;
    SavedOptions saved_;
    PrinterList* printers_;
    QString printerName_;
    QString startedWith_; ///< a queue or an instance; empty if nobody named one
    QString madeFrom_;    ///< the URI of a printer that was found and has no queue of its own
    std::optional<QString> modelWithoutPpd_; ///< what the server called it then; nothing where it has a PPD
    bool isThere_ = false;
    bool isReadingOffer_ = false;
    bool readsOfferAgain_ = false;
    cups::CancelFlag stopFetching_;
};

} // namespace halvern
