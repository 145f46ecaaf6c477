// SPDX-License-Identifier: MIT
#include "dialog/session/printer_choice.h"

#include "dialog/server/local_queue.h"
#include "platform/foundation/threads/work_queue.h"

#include <QPointer>

namespace halvern {

namespace {

PrinterOffer offerOf(const QueuePpd& ppd)
{
    return ppd.file && *ppd.file ? readPrinterOffer(ppd.file->get()) : PrinterOffer();
}

} // namespace

PrinterChoice::PrinterChoice(const SessionRequest& request)
    : request_(request),
      saved_(readSavedOptions()),
      printers_(new PrinterList(this)),
      stopFetching_(cups::makeCancelFlag())
{
    connect(printers_, &PrinterList::changed, this, &PrinterChoice::takePrinters);
}

void PrinterChoice::start()
{
    printers_->start();
    // A known name need not wait for the list.
    startedWith_ = startingPrinter(request_.printer, saved_);
    if (!startedWith_.isEmpty())
        select(queueOf(startedWith_));
}

OptionValues PrinterChoice::savedOptions() const
{
    return saved_.optionsOf(printerName_ == queueOf(startedWith_) ? startedWith_ : printerName_);
}

QString PrinterChoice::instance() const
{
    const bool isInstance = startedWith_ != queueOf(startedWith_) && printerName_ == queueOf(startedWith_);
    return isInstance ? startedWith_ : QString();
}

QString PrinterChoice::originOf(const QString& name) const
{
    const PrinterInfo* info = printers_->find(name);
    return info && (info->isDiscovered || info->isTemporary) ? info->deviceUri : QString();
}

// Its queue is the server's to take away, also where it was there when the printer was selected.
void PrinterChoice::noteOrigin()
{
    const PrinterInfo* info = printers_->find(printerName_);
    if (!info)
        return;
    const bool isNews = info->isDiscovered && madeFrom_.isEmpty() && !isThere_;
    madeFrom_ = originOf(printerName_);
    // Somebody named it before anybody had seen it.
    if (isNews)
        select(printerName_);
}

// Somebody has installed its driver meanwhile: what the printer says over IPP is its options no more. The
// server's own queue for a discovered printer is called otherwise while it is made, and is nobody's news.
void PrinterChoice::noteDriver()
{
    const PrinterInfo* info = printers_->find(printerName_);
    const bool isNews = isThere_ && modelWithoutPpd_ && info && originOf(printerName_).isEmpty() &&
                        info->makeAndModel != *modelWithoutPpd_;
    if (!isNews)
        return;
    isThere_ = false;
    select(printerName_);
    Q_EMIT notice(
        tr("\"%1\" was set up anew on the print server. Its options were read again.").arg(printerName_));
}

void PrinterChoice::takePrinters()
{
    noteOrigin();
    noteDriver();
    // What another program remembers is nobody's word for a printer that is gone.
    const bool isLost = (request_.printer.isEmpty() || request_.handed) && request_.isAttended && !isThere_ &&
                        printers_->hasLookedRound() && printerName_ == queueOf(startedWith_) &&
                        !printers_->find(printerName_);
    if ((!printerName_.isEmpty() && !isLost) || printers_->printers().empty())
        return;
    const QString lost = printerName_;
    const QString usual = usualPrinter(printers_->serverDefault(), printers_->printers());
    // Where somebody looks on and may choose another, any is better than none.
    if (usual.isEmpty() && !request_.isAttended)
        return;
    select(usual.isEmpty() ? printers_->printers().front().name : usual);
    if (!lost.isEmpty() && request_.handed)
        Q_EMIT notice(tr("The application remembers a printer \"%1\" that is none of the print server's. "
                         "\"%2\" was chosen instead.")
                          .arg(lost, printerName_));
    else if (!lost.isEmpty())
        Q_EMIT notice(
            tr("Your default printer \"%1\" is none of the print server's. \"%2\" was chosen instead.")
                .arg(lost, printerName_));
}

void PrinterChoice::select(const QString& name)
{
    if (name == printerName_ && isThere_)
        return;
    stopFetching_->store(true);
    Q_EMIT leaving();
    isThere_ = isReadingOffer_ = readsOfferAgain_ = false;
    printerName_ = name;
    stopFetching_ = cups::makeCancelFlag();
    Q_EMIT selected(name);
    madeFrom_ = originOf(name);
    const PrinterInfo* info = printers_->find(name);
    const bool hasQueue = !info || !info->isDiscovered;
    QPointer<PrinterChoice> self(this);
    const bool readsPresets = request_.remembers || !request_.preset.isEmpty();
    WorkQueue().async(
        [self, name, madeFrom = hasQueue ? QString() : madeFrom_, readsPresets, stop = stopFetching_] {
            FetchedPrinter printer;
            QueuePpd& ppd = printer.ppd;
            if (!madeFrom.isEmpty())
                ppd.problem = createLocalQueue(name, madeFrom, stop);
            if (ppd.problem.isEmpty())
                ppd = fetchQueuePpd(name, stop);
            // Here, because a PPD may have ten thousand options.
            if (ppd.file)
                printer.model = PpdModel::make(std::move(*ppd.file));
            if (ppd.file && !printer.model)
                ppd.problem =
                    tr("There is not enough memory for the options of \"%1\". Close something, and choose "
                       "the printer again.")
                        .arg(name);
            if (printer.model)
                printer.offer = readPrinterOffer(printer.model->file());
            if (readsPresets)
                printer.presets = PresetFile(name).read();
            mainQueue().async([self, printer = std::move(printer), stop] {
                if (self && !stop->load())
                    self->takePpd(printer);
            });
        });
}

void PrinterChoice::takePpd(const FetchedPrinter& printer)
{
    isThere_ = printer.model != nullptr;
    modelWithoutPpd_ = printer.ppd.isWithoutPpd ? std::optional(printer.ppd.makeAndModel) : std::nullopt;
    Q_EMIT fetched(printer);
}

void PrinterChoice::readOfferAgain()
{
    if (isReadingOffer_) {
        readsOfferAgain_ = true;
        return;
    }
    isReadingOffer_ = true;
    QPointer<PrinterChoice> self(this);
    WorkQueue().async([self, name = printerName_, stop = stopFetching_] {
        const QueuePpd ppd = fetchQueuePpd(name, stop);
        mainQueue().async([self, stop, offer = offerOf(ppd), isThere = ppd.file != nullptr] {
            if (!self || stop->load())
                return;
            self->isReadingOffer_ = false;
            if (isThere)
                Q_EMIT self->offerRead(offer);
            if (std::exchange(self->readsOfferAgain_, false))
                self->readOfferAgain();
        });
    });
}

} // namespace halvern
