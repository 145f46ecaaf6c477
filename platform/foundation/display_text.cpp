// SPDX-License-Identifier: MIT
#include "platform/foundation/display_text.h"

#include <QStringList>
#include <QTextStream>

namespace halvern {

namespace {

constexpr char16_t kFirstStrongIsolate = 0x2068;
constexpr char16_t kPopIsolate = 0x2069;

bool isLineBreakOrControl(QChar character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

// Marks, embeddings, overrides and isolates.
bool turnsDirection(QChar character)
{
    const char16_t code = character.unicode();
    return code == 0x061c || code == 0x200e || code == 0x200f || (code >= 0x202a && code <= 0x202e) ||
           (code >= 0x2066 && code <= kPopIsolate);
}

// Pairs that isolated() has put there may stay; one alone would reach beyond its text.
bool hasPairedIsolates(const QString& text)
{
    int depth = 0;
    for (const QChar character : text) {
        depth += character == kFirstStrongIsolate ? 1 : character == kPopIsolate ? -1 : 0;
        if (depth < 0)
            return false;
    }
    return depth == 0;
}

QString cleaned(const QString& text, bool keepIsolates)
{
    QString result;
    result.reserve(text.size());
    for (const QChar character : text) {
        if (isLineBreakOrControl(character))
            result += QLatin1Char(' ');
        else if (!turnsDirection(character) ||
                 (keepIsolates && (character == kFirstStrongIsolate || character == kPopIsolate)))
            result += character;
    }
    return result;
}

QString cut(QString text, qsizetype longest)
{
    if (text.size() <= longest)
        return text;
    qsizetype length = std::max<qsizetype>(0, longest - 1);
    if (length > 0 && text.at(length - 1).isHighSurrogate())
        --length;
    text.truncate(length);
    return text + QChar(0x2026);
}

} // namespace

QString displayText(const QString& text, int longest)
{
    // A cut may part a pair.
    const QString shown = cut(cleaned(text, true), longest);
    return hasPairedIsolates(shown) ? shown : cleaned(shown, false);
}

QString isolated(const QString& text, int longest)
{
    return QChar(kFirstStrongIsolate) + displayText(text, longest) + QChar(kPopIsolate);
}

QString terminalText(const QString& text)
{
    return cleaned(text, false);
}

void writeLine(QTextStream& out, const QString& text)
{
    out << terminalText(text) << Qt::endl;
}

void writeLine(std::FILE* out, const QString& text)
{
    QTextStream stream(out);
    writeLine(stream, text);
}

void writeLines(QTextStream& out, const QString& text)
{
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString& line : lines)
        writeLine(out, line);
}

} // namespace halvern
