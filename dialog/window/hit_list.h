// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/option_search.h"

#include <QAbstractListModel>
#include <QStyledItemDelegate>

namespace halvern {

/// What a search has found, the best first, and no more than anybody looks through. Main thread only.
class HitList : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role { pathRole = Qt::UserRole };

    using QAbstractListModel::QAbstractListModel;

    /// Forgets what was found; what comes now was found by these words.
    void clear(const SearchWords& words);

    void add(const SearchHit& hit);

    bool isFull() const;

    const SearchHit& hit(int row) const { return hits_[row]; }

    const SearchWords& words() const { return words_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    QList<SearchHit> hits_;
    SearchWords words_{QString()};
};

/// Draws one of them: its name with what was looked for marked, and under it where it is.
class HitDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace halvern
