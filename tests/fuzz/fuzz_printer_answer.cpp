// SPDX-License-Identifier: MIT
// A printer's answer about itself, from the bytes to the words. Run it on a copy of the seeds:
//   mkdir -p build/fuzz/answers && cp tests/fuzz/seeds/{*.ipp,answers/*} build/fuzz/answers
//   build/fuzz/bin/fuzz-printer-answer -max_total_time=600 -rss_limit_mb=500
//       -max_len=65536 build/fuzz/answers

#include "dialog/server/ipp_description.h"
#include "dialog/server/printer_report.h"

#include <cups/ipp.h>

#include <cstdlib>
#include <cstring>

using namespace halvern;

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

struct Bytes {
    const uint8_t* next;
    size_t left;
};

ssize_t take(void* context, ipp_uchar_t* buffer, size_t length)
{
    auto* bytes = static_cast<Bytes*>(context);
    const size_t count = std::min(length, bytes->left);
    std::memcpy(buffer, bytes->next, count);
    bytes->next += count;
    bytes->left -= count;
    return count == 0 ? -1 : ssize_t(count);
}

// What a screen gets to see is short, and on one line.
void requireShown(const QString& text, qsizetype longest)
{
    require(text.size() <= longest);
    for (const QChar letter : text)
        require(letter.category() != QChar::Other_Control);
}

void look(const PrinterReport& report)
{
    require(report.trays.size() <= 64 && report.supplies.size() <= 64 && report.reasons.size() <= 64);
    for (const QString& reason : report.reasons)
        requireShown(reason, 200);
    requireShown(report.message, 200);
    for (const TrayPaper& paper : report.trays) {
        require(paper.points.width() > 0.0 && paper.points.width() < 1e6);
        require(paper.points.height() >= 0.0 && paper.points.height() < 1e6);
        requireShown(paper.source + paper.type, 400);
    }
    for (const Supply& supply : report.supplies) {
        require(!supply.level || (*supply.level >= 0 && *supply.level <= 100));
        requireShown(supplyName(supply), 200);
    }
    requireShown(lowSupplies(report.supplies, true), 20000);
}

// What else a line held would be taken for another one's words, or for none at all.
void lookAtPpd(const QByteArray& text)
{
    constexpr qsizetype kLongestLine = 255;
    for (const QByteArray& line : text.split('\n'))
        require(line.size() <= kLongestLine && (line.isEmpty() || line.startsWith('*')) &&
                line.count('"') % 2 == 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Bytes bytes{data, size};
    ipp_t* answer = ippNew();
    if (ippReadIO(&bytes, take, 1, nullptr, answer) == IPP_STATE_DATA) {
        const PrinterReport printer = readReport(answer, true);
        const PrinterReport queue = readReport(answer, false);
        look(printer);
        look(queue);
        look(merged(queue, printer));
        lookAtPpd(describedAsPpd(answer, true).value_or(QByteArray()));
    }
    ippDelete(answer);
    return 0;
}
