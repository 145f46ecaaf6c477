// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QString>

#include <cstdio>

class QTextStream;

namespace HALVERN_EXPORT halvern {

/// Words that a printer, a PPD, a server, a file's name or a preset chose, made fit for a screen or a
/// terminal. Any thread. Where a widget takes them: toolkit/plain_text.h.

/// The longest text, in characters, that a label or an item shows of a stranger's words.
inline constexpr int kLongestText = 500;

/// One paragraph: control characters and line separators become spaces, what would turn the writing direction
/// of its neighbours goes, and what is longer than `longest` ends with an ellipsis. It is plain text, not
/// markup.
QString displayText(const QString& text, int longest = kLongestText);

/// displayText() for a place in a sentence or beside other words: its writing direction stays its own, so
/// that "4 x 6 in" keeps its order in a line from right to left.
QString isolated(const QString& text, int longest = kLongestText);

/// One line for a terminal, uncut: nothing in it moves the cursor, colours, or answers in the user's name.
QString terminalText(const QString& text);

/// Writes terminalText() and a line feed, and flushes.
void writeLine(QTextStream& out, const QString& text);
void writeLine(std::FILE* out, const QString& text);

/// The same for a text of several lines; each of them is cleaned.
void writeLines(QTextStream& out, const QString& text);

} // namespace halvern
