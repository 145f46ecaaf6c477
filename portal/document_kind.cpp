// SPDX-License-Identifier: MIT
#include "portal/document_kind.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace halvern {

namespace {

struct DocumentKindWords {
    Q_DECLARE_TR_FUNCTIONS(DocumentKind)
};

struct Row {
    DocumentKind kind;
    qsizetype at;
    QByteArrayView bytes;
    const char* ending;
};

// Those that halvern-decode reads, and what goes out as it is.
constexpr std::array kRows{
    Row{DocumentKind::pdf, 0, "%PDF-", ".pdf"},
    Row{DocumentKind::postScript, 0, "%!", ".ps"},
    Row{DocumentKind::picture, 0, "\xFF\xD8\xFF", ".jpg"},
    Row{DocumentKind::picture, 0, "\x89PNG\r\n\x1A\n", ".png"},
    Row{DocumentKind::picture, 0, QByteArrayView("II*\0", 4), ".tif"},
    Row{DocumentKind::picture, 0, QByteArrayView("MM\0*", 4), ".tif"},
    Row{DocumentKind::picture, 0, QByteArrayView("II+\0", 4), ".tif"},
    Row{DocumentKind::picture, 0, QByteArrayView("MM\0+", 4), ".tif"},
    Row{DocumentKind::picture, 8, "WEBP", ".webp"},
    Row{DocumentKind::picture, 4, "ftypavi", ".avif"},
    Row{DocumentKind::picture, 4, "ftyphe", ".heic"},
    Row{DocumentKind::picture, 4, "ftypmi", ".heif"},
    Row{DocumentKind::picture, 4, "ftypmsf1", ".heif"},
    Row{DocumentKind::picture, 0, "GIF8", ".gif"},
    Row{DocumentKind::picture, 0, "BM", ".bmp"},
};

// Both may stand behind a few lines for the printer.
const char* endingBehindLines(const QByteArray& start)
{
    const QByteArray head = start.left(kKindBytes);
    if (head.contains("%PDF-"))
        return ".pdf";
    const bool isForPrinter = head.startsWith("\x1B%-12345X") || head.startsWith('\x04');
    return isForPrinter && head.contains("%!") ? ".ps" : nullptr;
}

const Row* rowOf(const QByteArray& start)
{
    for (const Row& row : kRows) {
        if (QByteArrayView(start).sliced(std::min(row.at, start.size())).startsWith(row.bytes))
            return &row;
    }
    const char* ending = endingBehindLines(start);
    for (const Row& row : kRows) {
        if (ending && QByteArrayView(ending) == row.ending)
            return &row;
    }
    return nullptr;
}

} // namespace

DocumentKind kindOf(const QByteArray& start)
{
    const Row* row = rowOf(start);
    return row ? row->kind : DocumentKind::unknown;
}

QString endingOf(const QByteArray& start)
{
    const Row* row = rowOf(start);
    return row ? QString::fromLatin1(row->ending) : QString();
}

QString mimeTypeOf(DocumentKind kind)
{
    return kind == DocumentKind::postScript ? QStringLiteral("application/postscript")
                                            : QStringLiteral("application/pdf");
}

QString documentProblem(DocumentKind kind, qint64 size, const QByteArray& end)
{
    if (size == 0)
        return DocumentKindWords::tr(
            "The application has sent an empty document. Print it once more from there.");
    if (kind == DocumentKind::unknown)
        return DocumentKindWords::tr(
            "What the application has sent is no PDF, PostScript or picture. Export the document as a "
            "PDF file there, and print that.");
    if (kind == DocumentKind::pdf && !end.contains("%%EOF"))
        return DocumentKindWords::tr(
            "The document ends in the middle: the application has not sent all of it. Print it once "
            "more from there.");
    return {};
}

} // namespace halvern
