// SPDX-License-Identifier: MIT
#include "dialog/server/printer_report.h"

#include "dialog/server/answer_text.h"
#include "platform/foundation/units.h"

#include <QRegularExpression>

#include <algorithm>

#include <cups/ipp.h>
#include <cups/pwg.h>

namespace halvern {

namespace {

constexpr int kMostReasons = 32;
constexpr int kMostTrays = 32;
constexpr int kMostReported = 100;
constexpr int kMostJobs = 100000;
constexpr int kLongestReportedKeyword = 120;
constexpr int kLongestReportedMessage = 160;
// In hundredths of a millimetre: half a centimetre to a roll of a hundred metres.
constexpr int kLeastReportedSide = 500;
constexpr int kMostReportedSide = 10000000;
constexpr int kMostSeconds = 366 * 24 * 3600;

QStringList stringsOf(ipp_attribute_t* attribute, int most, bool* isCut)
{
    QStringList all;
    const int count = attribute ? ippGetCount(attribute) : 0;
    *isCut = *isCut || count > most;
    for (int i = 0; i < std::min(count, most); ++i) {
        const QString text = stringAt(attribute, i, kLongestReportedKeyword);
        if (!text.isEmpty() && text != QLatin1StringView("none"))
            all.append(text);
    }
    return all;
}

double pointsOf(int hundredths)
{
    return hundredths / 100.0 * kPointsPerMillimetre;
}

int sideOf(ipp_attribute_t* side)
{
    if (!side || ippGetValueTag(side) != IPP_TAG_RANGE)
        return integerAt(side, 0, kLeastReportedSide, kMostReportedSide, 0);
    int upper = 0;
    ippGetRange(side, 0, &upper);
    return std::clamp(upper, 0, kMostReportedSide);
}

// One collection of media-col-ready.
std::optional<TrayPaper> readTray(ipp_t* media)
{
    ipp_attribute_t* measures = findAttribute(media, "media-size", IPP_TAG_BEGIN_COLLECTION);
    ipp_t* size = measures ? ippGetCollection(measures, 0) : nullptr;
    ipp_attribute_t* length = findAttribute(size, "y-dimension");
    const int width = sideOf(findAttribute(size, "x-dimension"));
    TrayPaper paper;
    paper.isRoll = length && ippGetValueTag(length) == IPP_TAG_RANGE;
    paper.points = QSizeF(pointsOf(width), pointsOf(sideOf(length)));
    if (width == 0 || (!paper.isRoll && paper.points.height() <= 0.0))
        return std::nullopt;
    paper.source = stringAt(findAttribute(media, "media-source"), 0, kLongestReportedKeyword);
    paper.type = stringAt(findAttribute(media, "media-type"), 0, kLongestReportedKeyword);
    paper.isBorderless = true;
    for (const char* margin :
         {"media-top-margin", "media-bottom-margin", "media-left-margin", "media-right-margin"})
        paper.isBorderless =
            paper.isBorderless && integerAt(findAttribute(media, margin), 0, 0, kMostReportedSide, 1) == 0;
    return paper;
}

// What a printer of the simpler kind names: "iso_a4_210x297mm".
std::optional<TrayPaper> readNamedSize(const QString& name)
{
    const pwg_media_t* media = pwgMediaForPWG(name.toUtf8().constData());
    if (!media || media->width < kLeastReportedSide || media->length < kLeastReportedSide)
        return std::nullopt;
    TrayPaper paper;
    paper.points = QSizeF(pointsOf(std::min(media->width, kMostReportedSide)),
                          pointsOf(std::min(media->length, kMostReportedSide)));
    return paper;
}

void readTrays(ipp_t* answer, bool isPrinter, PrinterReport& report)
{
    ipp_attribute_t* ready = findAttribute(answer, "media-col-ready", IPP_TAG_BEGIN_COLLECTION);
    const int count = ready ? ippGetCount(ready) : 0;
    report.isCut = report.isCut || count > kMostTrays;
    for (int i = 0; i < std::min(count, kMostTrays); ++i) {
        const std::optional<TrayPaper> paper = readTray(ippGetCollection(ready, i));
        const bool isTold = paper && (isPrinter || !paper->source.isEmpty() || !paper->type.isEmpty());
        // With and without margins it is one paper all the same.
        const auto isSame = [&](TrayPaper other) {
            other.isBorderless = paper->isBorderless;
            return other == *paper;
        };
        if (isTold && std::ranges::none_of(report.trays, isSame))
            report.trays.append(*paper);
    }
    if (!report.trays.isEmpty() || !isPrinter)
        return;
    for (const QString& name : stringsOf(findAttribute(answer, "media-ready"), kMostTrays, &report.isCut)) {
        if (const std::optional<TrayPaper> paper = readNamedSize(name))
            report.trays.append(*paper);
    }
}

// By the printer's own clock, which may count from its last start: only the distance counts.
std::optional<QDateTime> readSince(ipp_t* answer)
{
    constexpr int kLatest = 0x7fffffff;
    const int now = integerAt(findAttribute(answer, "printer-up-time"), 0, 1, kLatest, 0);
    const int then = integerAt(findAttribute(answer, "printer-state-change-time"), 0, 0, kLatest, -1);
    if (then < 0 || now < then || now - then > kMostSeconds)
        return std::nullopt;
    // Whole minutes: two questions never meet the same second.
    const QDateTime since = QDateTime::currentDateTime().addSecs(then - now);
    return QDateTime(since.date(), QTime(since.time().hour(), since.time().minute()));
}

PrinterState stateOf(int state)
{
    return state == IPP_PSTATE_STOPPED      ? PrinterState::stopped
           : state == IPP_PSTATE_PROCESSING ? PrinterState::processing
                                            : PrinterState::idle;
}

} // namespace

const QList<QByteArray>& reportAttributes()
{
    static const QList<QByteArray> kAttributes{"printer-state",
                                               "printer-state-reasons",
                                               "printer-state-message",
                                               "printer-up-time",
                                               "printer-state-change-time",
                                               "printer-is-accepting-jobs",
                                               "queued-job-count",
                                               "media-col-ready",
                                               "media-ready",
                                               "marker-names",
                                               "marker-levels",
                                               "marker-colors",
                                               "marker-types",
                                               "marker-low-levels",
                                               "marker-high-levels",
                                               "printer-supply",
                                               "printer-supply-description",
                                               "member-names"};
    return kAttributes;
}

PrinterReport readReport(ipp_t* answer, bool isPrinter)
{
    PrinterReport report;
    report.isThere = answer != nullptr;
    report.isOwn = report.isThere && isPrinter;
    report.state =
        stateOf(integerAt(findAttribute(answer, "printer-state"), 0, IPP_PSTATE_IDLE, IPP_PSTATE_STOPPED, 0));
    report.reasons = stringsOf(findAttribute(answer, "printer-state-reasons"), kMostReasons, &report.isCut);
    report.message = stringAt(findAttribute(answer, "printer-state-message"), 0, kLongestReportedMessage);
    report.since = readSince(answer);
    if (ipp_attribute_t* accepting = findAttribute(answer, "printer-is-accepting-jobs", IPP_TAG_BOOLEAN))
        report.isAccepting = ippGetBoolean(accepting, 0) != 0;
    report.jobs = integerAt(findAttribute(answer, "queued-job-count"), 0, 0, kMostJobs, 0);
    report.members = stringsOf(findAttribute(answer, "member-names"), kMostReported, &report.isCut);
    readTrays(answer, isPrinter, report);
    report.supplies = readSupplies(answer, &report.isCut);
    return report;
}

QStringList reasonsOfServer(const QStringList& reasons, PrinterState state)
{
    static const QRegularExpression kAlways(
        QStringLiteral("^(paused|hold-new-jobs|moving-to-paused|cups-.*)(-(error|warning|report))?$"));
    static const QRegularExpression kOnTheWay(
        QStringLiteral("^(connecting-to-device|offline|timed-out)(-(error|warning|report))?$"));
    const QStringList always = reasons.filter(kAlways);
    return state == PrinterState::processing ? always + reasons.filter(kOnTheWay) : always;
}

PrinterReport merged(const PrinterReport& queue, const PrinterReport& printer)
{
    PrinterReport both = queue;
    both.isSilent = printer.isSilent;
    both.problem = queue.problem.isEmpty() ? printer.problem : queue.problem;
    if (!printer.isThere)
        return both;
    if (!queue.isThere)
        return printer;
    both.isOwn = true;
    both.reasons = reasonsOfServer(queue.reasons, queue.state);
    for (const QString& reason : printer.reasons) {
        if (!both.reasons.contains(reason))
            both.reasons.append(reason);
    }
    both.trays = printer.trays;
    if (!printer.supplies.isEmpty())
        both.supplies = printer.supplies;
    both.isCut = queue.isCut || printer.isCut;
    // A printer that stands still for a cover does so before its queue knows.
    if (printer.state == PrinterState::stopped && queue.state != PrinterState::stopped) {
        both.state = printer.state;
        both.since = printer.since;
    }
    return both;
}

} // namespace halvern
