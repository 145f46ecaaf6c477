// SPDX-License-Identifier: MIT
#include "dialog/page/page_choice.h"

#include "platform/foundation/display_text.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <optional>

namespace halvern {

namespace {

constexpr int kMostDigits = 6;
constexpr int kLongestQuoted = 30;

struct PageChoiceWords {
    Q_DECLARE_TR_FUNCTIONS(PageChoice)
};

// A number in any script's digits; nothing if it is none.
std::optional<int> number(const QString& text)
{
    if (text.isEmpty() || text.size() > kMostDigits)
        return std::nullopt;
    int value = 0;
    for (const QChar c : text) {
        if (c.digitValue() < 0)
            return std::nullopt;
        value = 10 * value + c.digitValue();
    }
    return value;
}

// With plain commas and hyphens, whichever of them a keyboard or a word processor has written.
QString plain(const QString& text)
{
    QString result;
    for (const QChar c : text) {
        if (QStringView(u",;\u060C\u3001\uFF0C").contains(c))
            result += QLatin1Char(',');
        else if (QStringView(u"-\u2010\u2011\u2012\u2013\u2014\u2212").contains(c))
            result += QLatin1Char('-');
        else
            result += c;
    }
    return result;
}

std::optional<PageRange> readRange(const QString& text)
{
    const QStringList ends = text.split(QLatin1Char('-'));
    const auto end = [&](qsizetype i) { return number(ends[i].trimmed()); };
    if (ends.size() == 1) {
        const std::optional<int> only = end(0);
        return only ? std::optional<PageRange>({*only, *only}) : std::nullopt;
    }
    const bool isOpen = ends.size() == 2 && ends[1].trimmed().isEmpty();
    const bool isFromStart = ends.size() == 2 && ends[0].trimmed().isEmpty();
    if (ends.size() != 2 || (isOpen && isFromStart) || !(isOpen || end(1)) || !(isFromStart || end(0)))
        return std::nullopt;
    return PageRange{isFromStart ? 1 : *end(0), isOpen ? std::nullopt : end(1)};
}

QString problemWith(const PageRange& range, const QString& text, size_t count)
{
    const int last = range.last.value_or(range.first);
    const int least = std::min(range.first, last);
    const int most = std::max(range.first, last);
    if (least < 1 || (count > 0 && size_t(most) > count)) {
        const int wrong = least < 1 ? least : most;
        return count == 1 ? PageChoiceWords::tr("There is no page %1: there is one page only.").arg(wrong)
               : count == 0
                   ? PageChoiceWords::tr("There is no page %1: the first page is 1.").arg(wrong)
                   : PageChoiceWords::tr("There is no page %1: the pages are 1 to %2.").arg(wrong).arg(count);
    }
    if (last < range.first)
        return PageChoiceWords::tr("\"%1\" ends before it begins. Write %2-%3.")
            .arg(isolated(text, kLongestQuoted))
            .arg(last)
            .arg(range.first);
    return {};
}

// Marks the pages that `ranges` names; answers the first problem.
QString mark(const QString& ranges, std::vector<bool>& isChosen)
{
    for (const QString& part : plain(ranges).split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const QString text = part.trimmed();
        if (text.isEmpty())
            continue;
        const std::optional<PageRange> range = readRange(text);
        if (!range)
            return PageChoiceWords::tr(
                       "\"%1\" is no page. Write numbers and ranges, for example 1-3, 7, 12-.")
                .arg(isolated(text, kLongestQuoted));
        if (const QString problem = problemWith(*range, text, isChosen.size()); !problem.isEmpty())
            return problem;
        const size_t end = range->last ? size_t(*range->last) : isChosen.size();
        for (size_t page = size_t(range->first); page <= std::min(end, isChosen.size()); ++page)
            isChosen[page - 1] = true;
    }
    return {};
}

} // namespace

ChosenPages choosePages(const PageChoice& choice, size_t count)
{
    const bool hasRanges = !plain(choice.ranges).remove(QLatin1Char(',')).trimmed().isEmpty();
    std::vector<bool> isChosen(count, !hasRanges);
    ChosenPages chosen;
    if (choice.isGone && count > 0) {
        chosen.problem =
            PageChoiceWords::tr("The chosen pages were left out because they cannot be read, or not whole. "
                                "Choose others.");
        return chosen;
    }
    if (hasRanges)
        chosen.problem = mark(choice.ranges, isChosen);
    if (!chosen.problem.isEmpty())
        return chosen;
    for (size_t i = 0; i < count; ++i) {
        if (isChosen[i])
            chosen.pages.push_back(i);
    }
    return chosen;
}

std::vector<PageRange> rangesIn(const QString& ranges)
{
    std::vector<PageRange> found;
    if (!choosePages({.ranges = ranges}, 0).problem.isEmpty())
        return found;
    for (const QString& part : plain(ranges).split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        if (const std::optional<PageRange> range = readRange(part.trimmed()))
            found.push_back(*range);
    }
    return found;
}

QString rangesOf(std::vector<size_t> pages)
{
    std::ranges::sort(pages);
    QStringList ranges;
    for (size_t i = 0; i < pages.size();) {
        size_t end = i;
        while (end + 1 < pages.size() && pages[end + 1] == pages[end] + 1)
            ++end;
        const QString first = QString::number(pages[i] + 1);
        ranges.append(end == i ? first : first + QLatin1Char('-') + QString::number(pages[end] + 1));
        i = end + 1;
    }
    return ranges.join(QStringLiteral(", "));
}

} // namespace halvern
