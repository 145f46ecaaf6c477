// SPDX-License-Identifier: MIT
#include "portal/document_kind.h"

#include <QCoreApplication>

#include <array>

namespace halvern {

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(DocumentKind)
};

struct Row {
    DocumentKind kind;
    QByteArrayView start;
    const char* mimeType;
    const char* ending;
};

constexpr std::array kRows{
    Row{DocumentKind::pdf, "%PDF-", "application/pdf", ".pdf"},
    Row{DocumentKind::postScript, "%!", "application/postscript", ".ps"},
    Row{DocumentKind::jpeg, "\xFF\xD8\xFF", "image/jpeg", ".jpg"},
    Row{DocumentKind::png, "\x89PNG\r\n\x1A\n", "image/png", ".png"},
    Row{DocumentKind::tiff, QByteArrayView("II*\0", 4), "image/tiff", ".tif"},
    Row{DocumentKind::tiff, QByteArrayView("MM\0*", 4), "image/tiff", ".tif"},
};

const Row* rowOf(DocumentKind kind)
{
    for (const Row& row : kRows) {
        if (row.kind == kind)
            return &row;
    }
    return nullptr;
}

} // namespace

DocumentKind kindOf(const QByteArray& start)
{
    for (const Row& row : kRows) {
        if (start.startsWith(row.start))
            return row.kind;
    }
    // Both may stand behind a few lines for the printer.
    const QByteArray head = start.left(kKindBytes);
    if (head.contains("%PDF-"))
        return DocumentKind::pdf;
    const bool isForPrinter = head.startsWith("\x1B%-12345X") || head.startsWith('\x04');
    return isForPrinter && head.contains("%!") ? DocumentKind::postScript : DocumentKind::unknown;
}

QString mimeTypeOf(DocumentKind kind)
{
    const Row* row = rowOf(kind);
    return row ? QString::fromLatin1(row->mimeType) : QString();
}

QString endingOf(DocumentKind kind)
{
    const Row* row = rowOf(kind);
    return row ? QString::fromLatin1(row->ending) : QString();
}

QString documentProblem(DocumentKind kind, qint64 size, const QByteArray& end)
{
    if (size == 0)
        return Words::tr("The application has sent an empty document. Print it once more from there.");
    if (kind == DocumentKind::unknown)
        return Words::tr(
            "What the application has sent is no PDF, PostScript or picture. Export the document as a "
            "PDF file there, and print that.");
    if (kind == DocumentKind::pdf && !end.contains("%%EOF"))
        return Words::tr(
            "The document ends in the middle: the application has not sent all of it. Print it once "
            "more from there.");
    return {};
}

} // namespace halvern
