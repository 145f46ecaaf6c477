// SPDX-License-Identifier: MIT
#include "dialog/window/folded_list.h"

#include "platform/toolkit/plain_text.h"

#include <QClipboard>
#include <QFont>
#include <QGuiApplication>
#include <QHeaderView>
#include <QShortcut>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace halvern {

namespace {

constexpr int kMostRowsSeen = 14;

} // namespace

void RowsOnDemand::setRows(const QStringList& keys, Words words)
{
    if (keys == keys_) {
        words_ = std::move(words);
        if (!keys_.isEmpty())
            Q_EMIT dataChanged(index(0, 0), index(int(keys_.size()) - 1, 1));
        return;
    }
    beginResetModel();
    keys_ = keys;
    words_ = std::move(words);
    endResetModel();
}

int RowsOnDemand::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(keys_.size());
}

int RowsOnDemand::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : 2;
}

QVariant RowsOnDemand::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const auto text = [&] {
        const Row row = words_(keys_[index.row()]);
        return index.column() == 0 ? row.title : row.value;
    };
    QFont font;
    switch (role) {
    case Qt::DisplayRole:
        return itemText(text());
    case Qt::ToolTipRole:
        return plainToolTip(text());
    case Qt::FontRole:
        font.setBold(words_(keys_[index.row()]).isMarked);
        return font;
    default:
        return {};
    }
}

FoldedList::FoldedList(const QString& title, std::function<void(RowsOnDemand&)> fill, QWidget* parent)
    : QWidget(parent), fill_(std::move(fill)), heading_(new QToolButton(this))
{
    heading_->setText(title); // plain: words of ours
    heading_->setCheckable(true);
    heading_->setAutoRaise(true);
    heading_->setArrowType(layoutDirection() == Qt::RightToLeft ? Qt::LeftArrow : Qt::RightArrow);
    heading_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(heading_);
    connect(heading_, &QToolButton::toggled, this, &FoldedList::unfold);
}

void FoldedList::unfold(bool isOpen)
{
    if (!view_)
        makeView();
    const Qt::ArrowType folded = layoutDirection() == Qt::RightToLeft ? Qt::LeftArrow : Qt::RightArrow;
    heading_->setArrowType(isOpen ? Qt::DownArrow : folded);
    view_->setVisible(isOpen);
    refresh();
}

void FoldedList::makeView()
{
    rows_ = new RowsOnDemand(this);
    view_ = new QTreeView(this);
    setPlainName(view_, heading_->text());
    // Rows of one height are laid out without a look at those out of sight.
    view_->setUniformRowHeights(true);
    view_->setRootIsDecorated(false);
    view_->setHeaderHidden(true);
    view_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    view_->setModel(rows_);
    view_->header()->setSectionResizeMode(QHeaderView::Stretch);
    layout()->addWidget(view_);
    auto* copy = new QShortcut(QKeySequence::Copy, view_);
    copy->setContext(Qt::WidgetShortcut);
    connect(copy, &QShortcut::activated, this, &FoldedList::copySelection);
}

void FoldedList::refresh()
{
    if (!view_ || !heading_->isChecked())
        return;
    fill_(*rows_);
    const int rows = std::clamp(rows_->rowCount(), 1, kMostRowsSeen);
    view_->setFixedHeight(rows * view_->sizeHintForRow(0) + 2 * view_->frameWidth());
}

void FoldedList::copySelection() const
{
    QModelIndexList selected = view_->selectionModel()->selectedRows();
    std::sort(selected.begin(), selected.end());
    QString text;
    for (const QModelIndex& row : std::as_const(selected))
        text += rows_->data(row, Qt::DisplayRole).toString() + QLatin1Char('\t') +
                rows_->data(row.siblingAtColumn(1), Qt::DisplayRole).toString() + QLatin1Char('\n');
    QGuiApplication::clipboard()->setText(text); // plain: the clipboard's
}

} // namespace halvern
