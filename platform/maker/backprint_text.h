// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"
#include "platform/foundation/string_additions.h"

#include <QString>

#include <array>

/// What a line of text on the back of a picture may hold, and in which form it is stored. Lengths are in
/// UTF-16 units. Any thread.
namespace HALVERN_EXPORT halvern {
namespace backprint {

inline constexpr qsizetype kLongestLine = 120;

/// Where and how large the printer writes, in millimetres. The printer, which shares no code with us, has the
/// same numbers in printer/back_text.h; a test compares them.
inline constexpr double kEdge = 8.0;
inline constexpr double kLetterHeight = 3.5;
inline constexpr double kLineHeight = 6.0;

/// The placeholders that the printing side replaces, in the order of the menu.
inline constexpr std::array<const char*, 10> kTokens{"[YYYY]", "[YY]", "[DD]", "[D]", "[MM]",
                                                     "[M]",    "[C]",  "[F]",  "[P]", "[U]"};

/// The characters that a user may type: from the space to "}", and "©".
WMKastrovelExtras::CharacterSet safeCharacters();

/// The stored form: the comma and the apostrophe have a meaning on the way to the printer, substitutes stand
/// for them. Applied to a stored form it changes nothing.
QString stringWithSafeCharacters(const QString& string);

/// The form that is shown.
QString stringWithUnsafeCharacters(const QString& string);

/// What a line becomes when its editing ends: at most 120 characters, except that a backslash at the end gets
/// a space behind it.
QString limitCVPValue(const QString& text);

struct TypedText {
    QString text;

    /// Whether the rules took something away, so that the field has to be rewritten.
    bool refused = false;
};

/// What a line becomes at a keystroke, a paste or an input method's commit that left it with `text`.
TypedText afterTyping(const QString& text, const WMKastrovelExtras::CharacterSet& allowed);

struct EnteredLine {
    QString shown;
    QString stored;

    /// The characters that a line cannot hold, in the order in which they came.
    QString refused;

    /// How many characters came after the line was full.
    qsizetype beyondLimit = 0;
};

/// The line that results when somebody types `text` into an empty one, character by character, and ends
/// editing.
EnteredLine enteredLine(const QString& text);

} // namespace backprint
} // namespace halvern
