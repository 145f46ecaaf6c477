// SPDX-License-Identifier: MIT
#include "dialog/server/printer_watch.h"

#include "dialog/server/printer_questions.h"
#include "platform/foundation/threads/work_queue.h"

#include <QPointer>

namespace halvern {

namespace {

constexpr std::chrono::milliseconds kRest(3000);
constexpr std::chrono::milliseconds kRestAfterFailure(5000);
// A printer that is busy or wakes up does not answer once; what it said is still true.
constexpr int kForgivenFailures = 1;

/// The worker's side.
struct Line {
    std::optional<PrinterPlace> place; ///< where a service was found
    std::unique_ptr<cups::Connection> printer;

    PrinterReport ask(const PrinterPlace& named, const cups::CancelFlag& stop)
    {
        if (!place)
            place = lookedUp(named, stop);
        if (!place)
            return {};
        if (!printer)
            printer = std::make_unique<cups::Connection>(place->host, stop, kReportLimits);
        const PrinterReport report = askPrinter(*printer, *place);
        if (!printer->isConnected()) {
            printer.reset();
            // A service may come back with another address.
            place.reset();
        }
        return report;
    }
};

} // namespace

PrinterWatch::PrinterWatch(PrinterList& list) : list_(list)
{
    connect(&list, &PrinterList::reportChanged, this, &PrinterWatch::merge);
}

PrinterWatch::~PrinterWatch()
{
    if (stop_)
        stop_->store(true);
}

void PrinterWatch::leave()
{
    if (stop_)
        stop_->store(true);
    rounds_.reset();
    printer_ = report_ = {};
    failures_ = 0;
    list_.watch({});
}

void PrinterWatch::watch(const QString& queue, const QString& deviceUri)
{
    leave();
    list_.watch(queue);
    askPrinterItself(deviceUri);
    merge();
}

void PrinterWatch::refresh()
{
    list_.refresh();
    if (rounds_)
        rounds_->hurry();
}

void PrinterWatch::askPrinterItself(const QString& deviceUri)
{
    const std::optional<PrinterPlace> place = printerPlace(deviceUri);
    if (!place)
        return;
    stop_ = cups::makeCancelFlag();
    const QPointer<PrinterWatch> self(this);
    const auto line = std::make_shared<Line>();
    rounds_ = std::make_unique<Rounds>([self, line, place, stop = stop_] {
        const PrinterReport report = line->ask(*place, stop);
        mainQueue().async([self, report, stop] {
            if (self && !stop->load())
                self->takeAnswer(report);
        });
        return report.isThere ? kRest : kRestAfterFailure;
    });
}

void PrinterWatch::takeAnswer(const PrinterReport& report)
{
    failures_ = report.isThere ? 0 : failures_ + 1;
    if (printer_.isThere && failures_ > 0 && failures_ <= kForgivenFailures)
        return;
    printer_ = report;
    merge();
}

void PrinterWatch::merge()
{
    PrinterReport now = merged(list_.report(), printer_);
    if (now == report_)
        return;
    report_ = std::move(now);
    Q_EMIT changed();
}

} // namespace halvern
