// SPDX-License-Identifier: MIT
#include "printer/papers/ppd_catalogue.h"

#include "printer/papers/catalogue_archive.h"

#include <algorithm>
#include <cstdio>

namespace halvern {

namespace {

constexpr char kCatalogue[] = "VLXPapersKnown";
constexpr qsizetype kSerialDigits = 5;

/// Keeps a line well under the 255 characters at which libcups stops reading a PPD.
constexpr qsizetype kPieceSize = 200;

bool isHexadecimal(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

/// Keywords are compared as libcups does, without regard to case.
bool isCataloguePiece(QByteArrayView keyword)
{
    const qsizetype base = qsizetype(qstrlen(kCatalogue));
    return keyword.size() == base + kSerialDigits &&
           keyword.first(base).compare(kCatalogue, Qt::CaseInsensitive) == 0 &&
           std::ranges::all_of(keyword.sliced(base), isHexadecimal);
}

/// Where the line that begins at `start` ends, its line end included.
qsizetype lineEnd(QByteArrayView text, qsizetype start)
{
    const qsizetype end = text.indexOf('\n', start);
    return end < 0 ? text.size() : end + 1;
}

struct Statement {
    QByteArrayView keyword;
    qsizetype end = 0;
};

/// The statement that begins at `start`: a line, or several if its quoted value runs on.
Statement statementAt(QByteArrayView ppd, qsizetype start)
{
    Statement statement{{}, lineEnd(ppd, start)};
    const QByteArrayView line = ppd.sliced(start, statement.end - start);
    const qsizetype colon = line.indexOf(':');
    if (!line.startsWith('*') || line.startsWith("*%") || colon < 0)
        return statement;
    qsizetype keywordEnd = 1;
    while (line[keywordEnd] != ':' && line[keywordEnd] != ' ' && line[keywordEnd] != '\t')
        ++keywordEnd;
    statement.keyword = line.sliced(1, keywordEnd - 1);
    const qsizetype quote = line.indexOf('"', colon);
    if (quote < 0 || !line.sliced(colon + 1, quote - colon - 1).trimmed().isEmpty())
        return statement;
    const qsizetype closing = ppd.indexOf('"', start + quote + 1);
    const qsizetype oneLine = statement.end;
    statement.end = closing < 0 ? ppd.size() : lineEnd(ppd, closing);
    const qsizetype next = lineEnd(ppd, statement.end);
    if (statement.end > oneLine && ppd.sliced(statement.end, next - statement.end).trimmed() == "*End")
        statement.end = next;
    return statement;
}

} // namespace

QByteArray pieceKeyword(qsizetype serial)
{
    return kCatalogue + QByteArray::number(serial, 16).rightJustified(kSerialDigits, '0');
}

QList<PpdAttribute> runOf(const QByteArray& archive)
{
    QList<PpdAttribute> attributes;
    const QByteArray text = archive.toBase64();
    qsizetype serial = 0;
    for (qsizetype start = 0; start < text.size(); start += kPieceSize)
        attributes.append(PpdAttribute{pieceKeyword(serial++), text.mid(start, kPieceSize)});
    attributes.append(PpdAttribute{pieceKeyword(serial), QByteArray()});
    return attributes;
}

QList<PpdAttribute> attributesOf(const PaperList& list)
{
    QList<PpdAttribute> attributes = runOf(archiveOfCatalogue(list.records));
    if (list.duplex)
        attributes.append(PpdAttribute{"VLXDuplex", *list.duplex ? "True" : "False"});
    if (list.extraFeatures)
        attributes.append(PpdAttribute{"VLXExtraFeatures", *list.extraFeatures ? "True" : "False"});
    return attributes;
}

QByteArray ppdLines(const QList<PpdAttribute>& attributes, const QByteArray& lineEnd)
{
    QByteArray lines;
    for (const PpdAttribute& attribute : attributes)
        lines += '*' + attribute.keyword + ": \"" + attribute.value + '"' + lineEnd;
    return lines;
}

QByteArray filterLines(const QList<PpdAttribute>& attributes)
{
    QByteArray lines;
    for (const PpdAttribute& attribute : attributes)
        lines += "PPD: " + attribute.keyword + "=\"" + attribute.value + "\"\n";
    return lines;
}

QByteArray ppdWithAttributes(const QByteArray& ppd, const QList<PpdAttribute>& attributes)
{
    const auto isReplaced = [&](QByteArrayView keyword) {
        return isCataloguePiece(keyword) ||
               std::ranges::any_of(attributes, [&](const PpdAttribute& attribute) {
                   return keyword.compare(attribute.keyword, Qt::CaseInsensitive) == 0;
               });
    };
    const QByteArray newLine = ppd.contains("\r\n") ? "\r\n" : "\n";
    QByteArray result;
    std::optional<qsizetype> place;
    for (qsizetype start = 0; start < ppd.size();) {
        const Statement statement = statementAt(ppd, start);
        if (!isReplaced(statement.keyword))
            result += ppd.sliced(start, statement.end - start);
        else if (!place)
            place = result.size();
        start = statement.end;
    }
    if (!place && !result.isEmpty() && !result.endsWith('\n'))
        result += newLine;
    return result.insert(place.value_or(result.size()), ppdLines(attributes, newLine));
}

} // namespace halvern
