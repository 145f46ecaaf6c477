// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <QWidget>

#include <functional>

class QToolButton;
class QTreeView;

namespace halvern {

/// Rows of two columns whose words are asked for when they come into sight. Main thread only.
class RowsOnDemand : public QAbstractTableModel {
    Q_OBJECT

public:
    struct Row {
        QString title;
        QString value;
        bool isMarked = false;
    };

    using Words = std::function<Row(const QString& key)>;

    using QAbstractTableModel::QAbstractTableModel;

    /// The same keys as before keep their place; only their words are asked for again.
    void setRows(const QStringList& keys, Words words);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    QStringList keys_;
    Words words_;
};

/// A heading that unfolds a list. What the list holds is worked out when it is unfolded, and again with each
/// refresh() while it is. Selected rows can be copied. Main thread only.
class FoldedList : public QWidget {
    Q_OBJECT

public:
    /// `fill` gives the model its rows.
    FoldedList(const QString& title, std::function<void(RowsOnDemand&)> fill, QWidget* parent);

    void refresh();

private:
    void unfold(bool isOpen);
    void makeView();
    void copySelection() const;

    std::function<void(RowsOnDemand&)> fill_;
    QToolButton* heading_;
    RowsOnDemand* rows_ = nullptr;
    QTreeView* view_ = nullptr;
};

} // namespace halvern
