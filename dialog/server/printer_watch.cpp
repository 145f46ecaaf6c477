// SPDX-License-Identifier: MIT
#include "dialog/server/printer_watch.h"

#include "dialog/server/printer_questions.h"
#include "platform/foundation/threads/work_queue.h"

#include <QPointer>

namespace halvern {

namespace {

constexpr std::chrono::milliseconds kRest(3000);
constexpr std::chrono::milliseconds kRestAfterFailure(5000);

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
    const auto line = std::make_shared<std::unique_ptr<cups::Connection>>();
    rounds_ = std::make_unique<Rounds>([self, line, place, stop = stop_] {
        if (!*line)
            *line = std::make_unique<cups::Connection>(place->host, stop, kReportLimits);
        const PrinterReport report = askPrinter(**line, *place);
        if (!(*line)->isConnected())
            line->reset();
        mainQueue().async([self, report, stop] {
            if (!self || stop->load())
                return;
            self->printer_ = report;
            self->merge();
        });
        return report.isThere ? kRest : kRestAfterFailure;
    });
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
