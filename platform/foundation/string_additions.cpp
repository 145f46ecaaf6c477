// SPDX-License-Identifier: MIT
#include "platform/foundation/string_additions.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace halvern {

namespace {

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

// Cuts a run of digits off the front, without its leading zeros.
QStringView takeDigits(QStringView& text)
{
    const auto end = std::find_if_not(text.begin(), text.end(), isDigit);
    QStringView digits = text.left(end - text.begin());
    text = text.mid(digits.size());
    while (digits.size() > 1 && digits.front() == u'0')
        digits = digits.mid(1);
    return digits;
}

int compareNumbers(QStringView left, QStringView right)
{
    if (left.size() != right.size())
        return left.size() < right.size() ? -1 : 1;
    return left.compare(right);
}

int compareFolded(QStringView a, QStringView b)
{
    while (!a.isEmpty() && !b.isEmpty()) {
        if (isDigit(a.front()) && isDigit(b.front())) {
            const QStringView numberA = takeDigits(a);
            const QStringView numberB = takeDigits(b);
            if (const int order = compareNumbers(numberA, numberB))
                return order;
            continue;
        }
        if (a.front() != b.front())
            return a.front() < b.front() ? -1 : 1;
        a = a.mid(1);
        b = b.mid(1);
    }
    return int(!a.isEmpty()) - int(!b.isEmpty());
}

} // namespace

int KSTRVL_NSStringAdditions::numericalCaseInsensitiveCompare(const QString& left, const QString& right)
{
    return compareFolded(left.toCaseFolded(), right.toCaseFolded());
}

QStringList KSTRVL_NSStringAdditions::sortedNumerically(const QStringList& strings)
{
    // Folding once for each string, not once for each comparison.
    std::vector<std::pair<QString, QString>> folded;
    folded.reserve(size_t(strings.size()));
    for (const QString& string : strings)
        folded.emplace_back(string.toCaseFolded(), string);
    std::stable_sort(folded.begin(), folded.end(), [](const auto& left, const auto& right) {
        return compareFolded(left.first, right.first) < 0;
    });
    QStringList sorted;
    sorted.reserve(strings.size());
    for (auto& entry : folded)
        sorted.append(std::move(entry.second));
    return sorted;
}

QString WMKastrovelExtras::stringWithOnlyCharactersInSet(const QString& string, const CharacterSet& set)
{
    if (!set)
        return QStringLiteral("");
    const auto begin = string.begin();
    const auto end = string.end();
    auto disallowed = std::find_if_not(begin, end, set);
    if (disallowed == end)
        return string;
    QString result = QStringLiteral("");
    while (disallowed != end) {
        // The prefix from the very start, each time.
        result += QStringView(string).left(disallowed - begin);
        disallowed = std::find_if_not(std::find_if(disallowed, end, set), end, set);
    }
    return result;
}

} // namespace halvern
