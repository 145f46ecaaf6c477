// SPDX-License-Identifier: MIT
#include "dialog/server/printer_list.h"

#include "dialog/server/printer_questions.h"
#include "dialog/server/server_events.h"
#include "platform/foundation/list_text.h"
#include "platform/foundation/near_names.h"
#include "platform/foundation/threads/work_queue.h"
#include "platform/printing/cups_ppd.h"

#include <QCoreApplication>
#include <QPointer>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <mutex>

namespace halvern {

namespace {

constexpr std::chrono::milliseconds kListRest(2000);
constexpr std::chrono::milliseconds kRestWithoutEvents(4000);
// Events may be lost.
constexpr std::chrono::seconds kOldest(60);
constexpr std::chrono::milliseconds kRestOfDiscovery(30000);
// More names than these nobody reads in a sentence.
constexpr qsizetype kMostNamed = 8;

constexpr int kLongestUri = 1024;

struct PrinterListWords {
    Q_DECLARE_TR_FUNCTIONS(PrinterList)
};

// With or without encryption, and whatever the back end is told beside it, it is the same printer.
QString samePlace(const QString& uri)
{
    QString place = uri.section(QLatin1Char('?'), 0, 0).toLower();
    if (place.startsWith(QLatin1StringView("ipps:")))
        place.remove(3, 1);
    while (place.endsWith(QLatin1Char('/')))
        place.chop(1);
    return place;
}

// Which one it is, its level tells.
bool isAboutSupplies(const QString& reason)
{
    return reason.startsWith(QLatin1StringView("marker-supply-low")) ||
           reason.startsWith(QLatin1StringView("toner-low"));
}

} // namespace

QString stateText(const PrinterInfo& printer)
{
    QString state = PrinterListWords::tr("Ready");
    if (!printer.isAccepting)
        state = PrinterListWords::tr("Does not accept jobs");
    else if (printer.state == PrinterState::stopped)
        state = PrinterListWords::tr("Paused");
    else if (printer.state == PrinterState::processing)
        state = PrinterListWords::tr("Printing");
    else if (printer.isSilent)
        state = PrinterListWords::tr("The printer does not answer");
    else if (printer.isDiscovered)
        state = PrinterListWords::tr("Found on the network");
    else if (stateSeverity(printer) == Severity::error)
        state = PrinterListWords::tr("Needs attention");
    QStringList reasons;
    for (const QString& reason : printer.reasons) {
        const QString text = reasonText(reason);
        const bool isToldBelow = !printer.low.isEmpty() && isAboutSupplies(reason);
        if (!text.isEmpty() && !isToldBelow && reason != QLatin1StringView("paused") &&
            !reasons.contains(text))
            reasons.append(text);
    }
    if (const QString text = messageText(printer.message);
        !text.isEmpty() && !reasons.contains(text, Qt::CaseInsensitive))
        reasons.append(text);
    if (!printer.low.isEmpty())
        reasons.append(printer.low);
    return reasons.isEmpty() ? state : state + QStringLiteral(": ") + listText(reasons);
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
    return printer.isSilent || !printer.low.isEmpty() ? std::max(worst, Severity::warning) : worst;
}

PrinterInfo withReport(PrinterInfo printer, const PrinterReport& report)
{
    printer.isSilent = report.isSilent;
    if (!report.isThere)
        return printer;
    if (report.isOwn)
        printer.reasons = reasonsOfServer(printer.reasons, printer.state);
    printer.state = report.state;
    for (const QString& reason : report.reasons) {
        if (!printer.reasons.contains(reason))
            printer.reasons.append(reason);
    }
    printer.low = lowSupplies(report.supplies, true);
    return printer;
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
        return PrinterListWords::tr("The print server has no printers. Add one, for example with lpadmin.");
    if (name.isEmpty())
        return PrinterListWords::tr("The print server has no default printer. Name one with --printer.");
    const qsizetype count = names.size();
    if (count > kMostNamed) {
        names = nearNames(name, names, kMostNamed) + names;
        names.removeDuplicates();
        names.resize(kMostNamed);
    }
    const QString list = listText(names);
    if (count == names.size())
        return PrinterListWords::tr("The print server has no printer \"%1\". It has: %2.").arg(name, list);
    return PrinterListWords::tr(
               "The print server has no printer \"%1\". It has: %2, and %3 more (lpstat -e).")
        .arg(name, list, QString::number(count - names.size()));
}

QString uuidIn(const QString& text)
{
    static const QRegularExpression kUuid(
        QStringLiteral("uuid[:=](?:urn:uuid:)?([0-9a-f]{8}(?:-[0-9a-f]{4}){3}-[0-9a-f]{12})"),
        QRegularExpression::CaseInsensitiveOption);
    return kUuid.match(text.left(kLongestUri)).captured(1).toLower();
}

std::vector<PrinterInfo> withDiscovered(std::vector<PrinterInfo> queues,
                                        const std::vector<PrinterInfo>& discovered)
{
    // Clang 14 cannot compile the range that the other form answers.
    std::stable_partition(queues.begin(), queues.end(),
                          [](const PrinterInfo& queue) { return !queue.isTemporary; });
    QSet<QString> known;
    const auto note = [&known](const PrinterInfo& printer) {
        for (const QString& uuid : {printer.uuid, uuidIn(printer.deviceUri)}) {
            if (!uuid.isEmpty())
                known.insert(uuid);
        }
        if (!printer.deviceUri.isEmpty())
            known.insert(samePlace(printer.deviceUri));
        known.insert(printer.name);
    };
    std::ranges::for_each(queues, note);
    for (const PrinterInfo& printer : discovered) {
        if (known.contains(printer.name) || known.contains(samePlace(printer.deviceUri)) ||
            known.contains(printer.uuid) || known.contains(uuidIn(printer.deviceUri)))
            continue;
        queues.push_back(printer);
        note(printer);
    }
    return queues;
}

namespace {

// Whether all is there that was asked for; a queue that the server does not have has no report.
bool isAnswered(const PrinterAnswer& answer, const QString& watched, const PrinterReport& report)
{
    const bool isListed =
        std::ranges::find(answer.printers, watched, &PrinterInfo::name) != answer.printers.end();
    return answer.problem.isEmpty() && (report.isThere || !isListed);
}

} // namespace

/// The worker's side: what it asks over, and what it is to look out for.
struct PrinterList::Line {
    std::mutex mutex; ///< of the following two
    QString watched;
    bool isWanted = true; ///< an answer, whatever the server says of events

    std::unique_ptr<Rounds> discovery; ///< the main thread's

    // The worker's only.
    std::unique_ptr<cups::Connection> server;
    QByteArray serverName;
    ServerEvents events;
    bool isFirst = true;
    std::chrono::steady_clock::time_point asked;

    std::pair<QString, bool> take()
    {
        const std::scoped_lock lock(mutex);
        return {watched, std::exchange(isWanted, false)};
    }

    // The event that was the reason to ask does not come again.
    void wantAgain()
    {
        const std::scoped_lock lock(mutex);
        isWanted = true;
    }

    void connect(const cups::CancelFlag& stop)
    {
        // Else the library keeps to the server that it found first.
        cupsSetServer(nullptr);
        if (server && server->isConnected() && serverName == cupsServer())
            return;
        serverName = cupsServer();
        server = std::make_unique<cups::Connection>(stop);
    }

    // One that lists its printers and leaves has no need of events.
    ServerEvents::News look()
    {
        if (std::exchange(isFirst, false))
            return ServerEvents::News::some;
        return server->isConnected() ? events.look(*server) : ServerEvents::News::unknown;
    }
};

PrinterList::PrinterList(QObject* parent)
    : QObject(parent), stop_(cups::makeCancelFlag()), line_(std::make_shared<Line>())
{
}

PrinterList::~PrinterList()
{
    stop_->store(true);
    line_->discovery.reset();
}

void PrinterList::start()
{
    const QPointer<PrinterList> self(this);
    const auto round = [self, line = line_, stop = stop_] {
        const auto [watched, isWanted] = line->take();
        line->connect(stop);
        const ServerEvents::News news = line->look();
        const auto now = std::chrono::steady_clock::now();
        const auto rest = news == ServerEvents::News::unknown ? kRestWithoutEvents : kListRest;
        if (news == ServerEvents::News::none && !isWanted && now - line->asked < kOldest)
            return rest;
        line->asked = now;
        PrinterAnswer answer = askPrinters(*line->server);
        PrinterReport report;
        if (!watched.isEmpty() && answer.problem.isEmpty())
            report = askQueue(*line->server, watched);
        if (!isAnswered(answer, watched, report))
            line->wantAgain();
        mainQueue().async([self, watched = watched, answer = std::move(answer), report] {
            if (!self)
                return;
            self->take(answer);
            if (self)
                self->takeReport(watched, report);
        });
        return rest;
    };
    rounds_ = std::make_unique<Rounds>(round, [line = line_] { line->events.end(); });
    discover();
}

void PrinterList::refresh()
{
    line_->wantAgain();
    if (rounds_)
        rounds_->hurry();
}

void PrinterList::watch(const QString& queue)
{
    {
        const std::scoped_lock lock(line_->mutex);
        line_->watched = queue;
    }
    report_ = {};
    if (!queue.isEmpty())
        refresh();
}

void PrinterList::discover()
{
    const QPointer<PrinterList> self(this);
    const auto before = std::make_shared<std::vector<PrinterInfo>>();
    line_->discovery = std::make_unique<Rounds>([self, before, stop = stop_] {
        const std::vector<PrinterInfo> now = discoverPrinters(kDiscoveryMilliseconds, stop);
        // One that has not answered once is still there.
        std::vector<PrinterInfo> found = withDiscovered(now, *before);
        *before = now;
        mainQueue().async([self, found = std::move(found)] {
            const bool isFirst = self && !std::exchange(self->hasLookedRound_, true);
            if (!self || (!isFirst && found == self->discovered_))
                return;
            self->discovered_ = found;
            self->printers_ = withDiscovered(self->queues_, found);
            // Else the server's answer brings them with its own.
            if (self->hasAnswer_)
                Q_EMIT self->changed();
        });
        return kRestOfDiscovery;
    });
}

void PrinterList::take(PrinterAnswer answer)
{
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

void PrinterList::takeReport(const QString& queue, const PrinterReport& report)
{
    {
        const std::scoped_lock lock(line_->mutex);
        if (queue != line_->watched)
            return;
    }
    // As for the list: a server that fails for a moment takes nothing away.
    if (!report.isThere || report == report_)
        return;
    report_ = report;
    Q_EMIT reportChanged();
}

const PrinterInfo* PrinterList::find(const QString& name) const
{
    const auto found = std::ranges::find(printers_, name, &PrinterInfo::name);
    return found == printers_.end() ? nullptr : &*found;
}

} // namespace halvern
