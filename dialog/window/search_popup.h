// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/window/search_box.h"

#include <QFrame>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>

class QLabel;
class QLineEdit;
class QListView;

namespace halvern {

/// The rows of a list that have all the words of a search.
class MatchingRows : public QSortFilterProxyModel {
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void search(const QString& form);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    QStringList words_;
};

/// Draws a row of a SearchBox's list, with its heading if it is the first below it.
class SearchRow : public QStyledItemDelegate {
public:
    SearchRow(SearchBox::Rows rows, QObject* parent) : QStyledItemDelegate(parent), rows_(rows) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    void paintTexts(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;

    SearchBox::Rows rows_;
};

/// The open list of a SearchBox. The keyboard stays in the field: arrows move in the list, Return chooses,
/// Escape leaves all as it was.
class SearchPopup : public QFrame {
    Q_OBJECT

public:
    SearchPopup(SearchBox& box, SearchBox::Rows rows, const QString& searchName);

    /// Opens it at its box, with all rows.
    void open();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void search();
    void choose(const QModelIndex& match);
    QModelIndex bestMatch() const;
    void place();
    void tell(const QModelIndex& current);
    bool takeKey(QObject* watched, QKeyEvent& key);

    SearchBox& box_;
    MatchingRows* rows_;
    QLineEdit* field_;
    QListView* list_;
    QLabel* nothing_;
};

} // namespace halvern
