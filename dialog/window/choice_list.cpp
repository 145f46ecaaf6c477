// SPDX-License-Identifier: MIT
#include "dialog/window/choice_list.h"

#include "platform/toolkit/plain_text.h"

#include <QApplication>
#include <QComboBox>
#include <QListView>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

namespace halvern {

namespace {

// Beyond it a list is only quick if it need not measure each line.
constexpr qsizetype kLongList = 200;
// A pop-up with reasons is wide enough for most of them.
constexpr int kReasonLetters = 60;
constexpr int kPadding = 4;

// A choice, and under it in a quieter line what stands against it.
class ReasonDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QSize size = QStyledItemDelegate::sizeHint(option, index);
        const int lines = index.data(ChoiceList::kHasReasonRole).toBool() ? 2 : 1;
        size.setHeight(lines * option.fontMetrics.lineSpacing() + 2 * kPadding);
        return size;
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QString reason = index.data(ChoiceList::kReasonRole).toString();
        if (reason.isEmpty()) {
            QStyledItemDelegate::paint(painter, option, index);
            return;
        }
        QStyleOptionViewItem item = option;
        initStyleOption(&item, index);
        const QStyle* style = item.widget ? item.widget->style() : QApplication::style();
        const QString text = std::exchange(item.text, QString());
        style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);
        const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, &item, item.widget) + 1;
        const QRect room = item.rect.adjusted(margin, kPadding, -margin, -kPadding);
        const bool isOn = item.state & QStyle::State_Selected;
        const auto draw = [&](const QString& line, Qt::Alignment edge, double opacity) {
            painter->setOpacity(opacity);
            painter->drawText(room, int(Qt::AlignLeading | edge),
                              item.fontMetrics.elidedText(line, Qt::ElideRight, room.width()));
        };
        painter->save();
        painter->setFont(item.font);
        painter->setPen(item.palette.color(isOn ? QPalette::HighlightedText : QPalette::Text));
        draw(text, Qt::AlignTop, 1.0);
        draw(reason, Qt::AlignBottom, 0.7);
        painter->restore();
    }
};

} // namespace

ChoiceList::ChoiceList(QComboBox* box) : QAbstractListModel(box), box_(box)
{
    box->setModel(this);
}

void ChoiceList::setClashes(const QHash<QString, QString>& clashes,
                            std::function<QString(const QString& keyword)> alsoChanges)
{
    if (!clashes.isEmpty() && clashes_.isEmpty()) {
        box_->setItemDelegate(new ReasonDelegate(box_));
        const int width = kReasonLetters * box_->fontMetrics().averageCharWidth();
        box_->view()->setMinimumWidth(std::max(box_->view()->minimumWidth(), width));
    }
    clashes_ = clashes;
    alsoChanges_ = std::move(alsoChanges);
    reasons_.clear();
    if (!choices_.isEmpty())
        Q_EMIT dataChanged(index(0), index(int(choices_.size()) - 1));
}

QString ChoiceList::reason(const ChoiceItem& choice) const
{
    const QString clash = choice.obstacle.isEmpty() ? clashes_.value(choice.keyword) : QString();
    if (clash.isEmpty())
        return {};
    auto known = reasons_.find(choice.keyword);
    if (known == reasons_.end()) {
        const QString others = alsoChanges_ ? alsoChanges_(choice.keyword) : QString();
        known = reasons_.insert(choice.keyword, others.isEmpty() ? clash : tr("%1; %2").arg(clash, others));
    }
    return *known;
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

QString ChoiceList::toolTip(const ChoiceItem& choice) const
{
    const QString against = choice.obstacle.isEmpty() ? reason(choice) : choice.obstacle;
    return against.isEmpty() ? choice.text : against;
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
    case kHasReasonRole:
        return choices_.size() <= kLongList && choice.obstacle.isEmpty() && clashes_.contains(choice.keyword);
    case kReasonRole:
    case Qt::AccessibleDescriptionRole:
        return displayText(reason(choice));
    case Qt::ToolTipRole:
        return plainToolTip(toolTip(choice));
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
