// SPDX-License-Identifier: MIT
#include "platform/maker/backprint_text.h"

namespace halvern::backprint {

namespace {

constexpr char16_t kFirstSafe = u' ';
constexpr char16_t kSafeRun = 94;
constexpr char16_t kCopyright = 0x00A9;

constexpr QChar kBackslash = u'\\';

struct Swap {
    char16_t typed;
    char16_t stored;
};

constexpr std::array<Swap, 2> kSwaps{{{u',', 0x2264}, {u'\'', 0x00E6}}};

bool isSafe(QChar character)
{
    const char16_t unit = character.unicode();
    return (unit >= kFirstSafe && unit < kFirstSafe + kSafeRun) || unit == kCopyright;
}

} // namespace

WMKastrovelExtras::CharacterSet safeCharacters()
{
    return isSafe;
}

QString stringWithSafeCharacters(const QString& string)
{
    QString result = string;
    for (const Swap& swap : kSwaps)
        result.replace(QChar(swap.typed), QChar(swap.stored));
    return result;
}

QString stringWithUnsafeCharacters(const QString& string)
{
    QString result = string;
    for (const Swap& swap : kSwaps)
        result.replace(QChar(swap.stored), QChar(swap.typed));
    return result;
}

QString limitCVPValue(const QString& text)
{
    QString limited = text;
    for (;;) {
        const bool spaceBeyond = limited.size() == kLongestLine + 1 && limited.back() == u' ';
        if (limited.size() > kLongestLine && !spaceBeyond)
            limited.truncate(kLongestLine);
        if (limited.isEmpty() || limited.back() != kBackslash)
            return limited;
        limited += u' ';
    }
}

TypedText afterTyping(const QString& text, const WMKastrovelExtras::CharacterSet& allowed)
{
    QString candidate = WMKastrovelExtras::stringWithOnlyCharactersInSet(text, allowed);
    const bool refused = candidate != text || candidate.size() > kLongestLine;
    return {candidate.left(kLongestLine), refused};
}

EnteredLine enteredLine(const QString& text)
{
    EnteredLine line;
    for (const QChar character : text) {
        if (!isSafe(character))
            line.refused += character;
        else if (line.shown.size() < kLongestLine)
            line.shown += character;
        else
            ++line.beyondLimit;
    }
    line.shown = limitCVPValue(line.shown);
    line.stored = stringWithSafeCharacters(line.shown);
    return line;
}

} // namespace halvern::backprint
