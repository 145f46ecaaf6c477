// SPDX-License-Identifier: MIT
#include "dialog/window/paper_size_list.h"

#include "dialog/window/search_box.h"
#include "platform/foundation/list_text.h"
#include "platform/toolkit/plain_text.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>

namespace halvern {

void PaperSizeList::setSizes(std::vector<PaperSize> sizes, const QList<OwnPaper>& own,
                             const std::optional<PaperLimits>& limits)
{
    beginResetModel();
    isMetric_ = QLocale().measurementSystem() == QLocale::MetricSystem;
    sizes_ = std::move(sizes);
    auto place =
        std::ranges::find_if(sizes_, [](const PaperSize& size) { return size.group > PaperGroup::own; });
    for (const OwnPaper& paper : own) {
        if (limits && limits->holds(paper.points))
            place = std::next(sizes_.insert(
                place, {customKeyword(paper.points), paper.name, paper.points, PaperGroup::own, {}, {}}));
    }
    if (limits)
        sizes_.insert(place,
                      {QLatin1StringView(kCustomRow), tr("Custom size..."), {}, PaperGroup::own, {}, {}});
    searched_.clear();
    for (const PaperSize& size : sizes_)
        searched_.append(searchText(size) + QLatin1Char(' ') + searchForm(size.place));
    endResetModel();
}

int PaperSizeList::rowOf(const QString& pageSize, int tray)
{
    if (pageSize.isEmpty())
        return -1;
    const auto isIt = [&](const PaperSize& size) {
        return size.keyword == pageSize || size.borderless == pageSize;
    };
    auto found = std::ranges::find_if(
        sizes_, [&](const PaperSize& size) { return tray >= 0 && size.tray == tray && isIt(size); });
    if (found == sizes_.end())
        found = std::ranges::find_if(sizes_, isIt);
    if (found == sizes_.end() && customMeasures(pageSize))
        found = std::ranges::find(sizes_, QLatin1StringView(kCustomRow), &PaperSize::keyword);
    const int row = int(std::distance(sizes_.begin(), found));
    if (found == sizes_.end()) {
        beginInsertRows({}, row, row);
        sizes_.push_back({pageSize, pageSize, {}, PaperGroup::other, {}, {}});
        searched_.append(searchForm(pageSize));
        endInsertRows();
    }
    return row;
}

int PaperSizeList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(sizes_.size());
}

QVariant PaperSizeList::data(const QModelIndex& index, int role) const
{
    if (index.row() < 0 || index.row() >= rowCount())
        return {};
    const PaperSize& size = sizes_[size_t(index.row())];
    const auto measures = [&] {
        // Many a name says them itself.
        static const QRegularExpression kMeasured(QStringLiteral("\\d *(x|\u00d7) *\\d.*(mm|cm|in)\\b"));
        return size.points.isEmpty() || kMeasured.match(size.text).hasMatch()
                   ? QString()
                   : measuresText(size.points, isMetric_);
    };
    switch (role) {
    case Qt::DisplayRole:
        return itemText(size.text);
    case Qt::UserRole:
        return size.keyword;
    case Qt::ToolTipRole:
        return plainToolTip(size.obstacle.isEmpty() ? size.text : size.obstacle);
    case Qt::AccessibleDescriptionRole:
        return size.obstacle;
    case Qt::AccessibleTextRole:
        return listText({size.text, size.place, measures(), groupText(size.group)});
    case kDetailRole:
        return size.place.isEmpty() ? measures() : displayText(size.place);
    case kGroupRole:
        return groupText(size.group);
    case kSearchedRole:
        return searched_[index.row()];
    default:
        return {};
    }
}

Qt::ItemFlags PaperSizeList::flags(const QModelIndex& index) const
{
    const bool isPossible =
        index.row() >= 0 && index.row() < rowCount() && sizes_[size_t(index.row())].obstacle.isEmpty();
    return isPossible ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren
                      : Qt::ItemNeverHasChildren;
}

} // namespace halvern
