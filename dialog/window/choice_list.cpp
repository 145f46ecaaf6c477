// SPDX-License-Identifier: MIT
#include "dialog/window/choice_list.h"

#include "platform/toolkit/plain_text.h"

#include <QComboBox>
#include <QListView>

#include <algorithm>

namespace halvern {

namespace {

// Beyond it a list is only quick if it need not measure each line.
constexpr qsizetype kLongList = 200;

} // namespace

ChoiceList::ChoiceList(QComboBox* box) : QAbstractListModel(box), box_(box)
{
    box->setModel(this);
}

void ChoiceList::setChoices(const QList<ChoiceItem>& choices)
{
    beginResetModel();
    choices_ = choices;
    endResetModel();
    if (auto* view = choices.size() > kLongList ? qobject_cast<QListView*>(box_->view()) : nullptr)
        view->setUniformItemSizes(true);
}

void ChoiceList::select(const QString& keyword)
{
    const auto found = std::ranges::find(std::as_const(choices_), keyword, &ChoiceItem::keyword);
    int row = keyword.isEmpty() ? -1 : int(std::distance(choices_.cbegin(), found));
    if (row == choices_.size()) {
        beginInsertRows({}, row, row);
        choices_.append({keyword, keyword, {}});
        endInsertRows();
    }
    box_->setCurrentIndex(row);
    setPlainToolTip(box_, row < 0 ? box_->placeholderText() : choices_[row].text);
}

int ChoiceList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(choices_.size());
}

QVariant ChoiceList::data(const QModelIndex& index, int role) const
{
    if (index.row() < 0 || index.row() >= choices_.size())
        return {};
    const ChoiceItem& choice = choices_[index.row()];
    switch (role) {
    case Qt::DisplayRole:
        return itemText(choice.text);
    case Qt::UserRole:
        return choice.keyword;
    case Qt::ToolTipRole:
        return plainToolTip(choice.obstacle.isEmpty() ? choice.text : choice.obstacle);
    case Qt::AccessibleDescriptionRole:
        return displayText(choice.obstacle);
    default:
        return {};
    }
}

Qt::ItemFlags ChoiceList::flags(const QModelIndex& index) const
{
    const bool isPossible =
        index.row() >= 0 && index.row() < choices_.size() && choices_[index.row()].obstacle.isEmpty();
    return isPossible ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren
                      : Qt::ItemNeverHasChildren;
}

} // namespace halvern
