// SPDX-License-Identifier: MIT
#include "dialog/server/printer_list.h"

#include "platform/foundation/near_names.h"
#include "platform/foundation/threads/work_queue.h"

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>

namespace halvern {

namespace {

constexpr int kRefreshMilliseconds = 4000;
constexpr int kDiscoveryMilliseconds = 3000;
// More names than these nobody reads in a sentence.
constexpr qsizetype kMostNamed = 8;

struct Words {
    Q_DECLARE_TR_FUNCTIONS(PrinterList)
};

} // namespace

QString stateText(const PrinterInfo& printer)
{
    QString state = Words::tr("Ready");
    if (!printer.isAccepting)
        state = Words::tr("Does not accept jobs");
    else if (printer.state == PrinterState::stopped)
        state = Words::tr("Paused");
    else if (printer.state == PrinterState::processing)
        state = Words::tr("Printing");
    else if (printer.isDiscovered)
        state = Words::tr("Found on the network");
    else if (stateSeverity(printer) == Severity::error)
        state = Words::tr("Needs attention");
    QStringList reasons;
    for (const QString& reason : printer.reasons) {
        const QString text = reasonText(reason);
        if (!text.isEmpty() && reason != QLatin1StringView("paused") && !reasons.contains(text))
            reasons.append(text);
    }
    if (const QString text = messageText(printer.message);
        !text.isEmpty() && !reasons.contains(text, Qt::CaseInsensitive))
        reasons.append(text);
    return reasons.isEmpty() ? state : state + QStringLiteral(": ") + reasons.join(QStringLiteral(", "));
}

Severity stateSeverity(const PrinterInfo& printer)
{
    Severity worst = Severity::report;
    if (!printer.isAccepting || printer.state == PrinterState::stopped)
        worst = Severity::error;
    for (const QString& reason : printer.reasons) {
        if (!reasonText(reason).isEmpty())
            worst = std::max(worst, severityOf(reason));
    }
    return worst;
}

QString usualPrinter(const QString& serverDefault, const std::vector<PrinterInfo>& printers)
{
    if (std::ranges::find(printers, serverDefault, &PrinterInfo::name) != printers.end())
        return serverDefault;
    return printers.size() == 1 ? printers.front().name : QString();
}

QString unknownPrinterText(const QString& name, const std::vector<PrinterInfo>& printers)
{
    QStringList names;
    for (const PrinterInfo& printer : printers)
        names.append(printer.name);
    if (names.isEmpty())
        return Words::tr("The print server has no printers. Add one, for example with lpadmin.");
    if (name.isEmpty())
        return Words::tr("The print server has no default printer. Name one with --printer.");
    const qsizetype count = names.size();
    if (count > kMostNamed) {
        names = nearNames(name, names, kMostNamed) + names;
        names.removeDuplicates();
        names.resize(kMostNamed);
    }
    const QString list = names.join(QStringLiteral(", "));
    if (count == names.size())
        return Words::tr("The print server has no printer \"%1\". It has: %2.").arg(name, list);
    return Words::tr("The print server has no printer \"%1\". It has: %2, and %3 more (lpstat -e).")
        .arg(name, list, QString::number(count - names.size()));
}

std::vector<PrinterInfo> withDiscovered(std::vector<PrinterInfo> queues,
                                        const std::vector<PrinterInfo>& discovered)
{
    for (const PrinterInfo& printer : discovered) {
        if (std::ranges::find(queues, printer.name, &PrinterInfo::name) == queues.end())
            queues.push_back(printer);
    }
    return queues;
}

PrinterList::PrinterList(QObject* parent) : QObject(parent), stop_(cups::makeCancelFlag())
{
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &PrinterList::refresh);
}

PrinterList::~PrinterList()
{
    stop_->store(true);
}

void PrinterList::start()
{
    refresh();
    discover();
}

void PrinterList::refresh()
{
    if (isAsking_)
        return;
    isAsking_ = true;
    QPointer<PrinterList> self(this);
    WorkQueue().async([self, stop = stop_] {
        PrinterAnswer answer = askPrinters(stop);
        mainQueue().async([self, answer = std::move(answer)] {
            if (self)
                self->take(answer);
        });
    });
}

void PrinterList::discover()
{
    QPointer<PrinterList> self(this);
    WorkQueue().async([self, stop = stop_] {
        std::vector<PrinterInfo> found = discoverPrinters(kDiscoveryMilliseconds, stop);
        mainQueue().async([self, found = std::move(found)] {
            if (!self || found.empty())
                return;
            self->discovered_ = found;
            self->printers_ = withDiscovered(self->queues_, found);
            Q_EMIT self->changed();
        });
    });
}

void PrinterList::take(PrinterAnswer answer)
{
    isAsking_ = false;
    timer_.start(kRefreshMilliseconds);
    const bool isFirst = !hasAnswer_;
    hasAnswer_ = true;
    // A server that fails for a moment does not empty the list.
    const bool isSame =
        answer.problem == problem_ && (!answer.problem.isEmpty() || answer.printers == queues_);
    problem_ = answer.problem;
    if (problem_.isEmpty()) {
        queues_ = std::move(answer.printers);
        serverDefault_ = answer.defaultName;
        printers_ = withDiscovered(queues_, discovered_);
    }
    if (isFirst || !isSame)
        Q_EMIT changed();
}

const PrinterInfo* PrinterList::find(const QString& name) const
{
    const auto found = std::ranges::find(printers_, name, &PrinterInfo::name);
    return found == printers_.end() ? nullptr : &*found;
}

} // namespace halvern
