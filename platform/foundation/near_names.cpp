// SPDX-License-Identifier: MIT
#include "platform/foundation/near_names.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <vector>

namespace halvern {

namespace {

// Beyond it nobody slips: such a text was pasted.
constexpr qsizetype kLongestTyped = 64;
constexpr int kHolds = 1;

// How many letters must be added, left out or replaced to get from one text to the other.
int editDistance(const QString& from, const QString& to)
{
    std::vector<int> row(size_t(to.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 0; i < from.size(); ++i) {
        int diagonal = std::exchange(row[0], int(i) + 1);
        for (size_t j = 1; j < row.size(); ++j) {
            const int replaced = diagonal + (from[i] == to[qsizetype(j) - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({replaced, row[j] + 1, row[j - 1] + 1});
        }
    }
    return row.back();
}

// 0 for the same but for case; nothing for a name that cannot have been meant.
std::optional<int> distance(const QString& wanted, const QString& name)
{
    const QString a = wanted.toCaseFolded();
    const QString b = name.toCaseFolded();
    if (a == b)
        return 0;
    if (a.isEmpty() || std::max(a.size(), b.size()) > kLongestTyped)
        return std::nullopt;
    if (a.size() > 2 && b.contains(a))
        return kHolds;
    const int slips = editDistance(a, b);
    return slips <= 1 + std::max(a.size(), b.size()) / 4 && slips < a.size() ? std::optional(slips + kHolds)
                                                                             : std::nullopt;
}

} // namespace

QStringList nearNames(const QString& wanted, const QStringList& names, qsizetype most)
{
    std::vector<std::pair<int, QString>> found;
    for (const QString& name : names) {
        if (const std::optional<int> steps = distance(wanted, name))
            found.emplace_back(*steps, name);
    }
    std::ranges::stable_sort(found, {}, &std::pair<int, QString>::first);
    QStringList nearest;
    for (size_t i = 0; i < found.size() && qsizetype(i) < most; ++i)
        nearest.append(found[i].second);
    return nearest;
}

} // namespace halvern
