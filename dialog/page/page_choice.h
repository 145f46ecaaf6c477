// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace halvern {

/// The last two are of a document that another program shows: only that one knows what they come to.
enum class PageParity { all, odd, even, current, selection };

/// Which of the pages are printed, and in what order. Of photos the ranges choose some, and parity and order
/// are of the sheets that these come to lie on. A value.
struct PageChoice {
    QString ranges; ///< as the user writes them: "1-3, 7, 12-"; empty: all
    PageParity parity = PageParity::all;
    bool isReversed = false;
    bool isGone = false; ///< what the ranges named was left out since: there is nothing to print

    bool operator==(const PageChoice&) const = default;
};

/// What a choice comes to.
struct ChosenPages {
    std::vector<size_t> pages; ///< from 0, in their order, none twice
    QString problem;           ///< a sentence for the user; empty if there is none
};

/// Chooses among the pages 1 to `count` by the ranges. With 0, which is as long as nobody knows, only the
/// form is checked. Also fit for a text that is still being typed: "1-3," is right. Any thread.
ChosenPages choosePages(const PageChoice& choice, size_t count);

struct PageRange {
    int first = 1;           ///< from 1
    std::optional<int> last; ///< nothing: to the end
};

/// What a text of ranges says, as it is written; empty where choosePages() has a problem with it. Any thread.
std::vector<PageRange> rangesIn(const QString& ranges);

/// The ranges that name these pages: 0, 1, 2, 6 -> "1-3, 7".
QString rangesOf(std::vector<size_t> pages);

} // namespace halvern
