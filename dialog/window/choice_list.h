// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/ppd_model.h"

#include <QAbstractListModel>

class QComboBox;

namespace halvern {

/// An option's choices behind a pop-up: any number of them without an item each. A choice that the printer's
/// equipment rules out is listed and cannot be chosen; its tool tip says why. Main thread only.
class ChoiceList : public QAbstractListModel {
    Q_OBJECT

public:
    /// Becomes the model of `box`, and its child.
    explicit ChoiceList(QComboBox* box);

    void setChoices(const QList<ChoiceItem>& choices);

    /// Selects a choice; one that is not listed is added. An empty one selects nothing.
    void select(const QString& keyword);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    QComboBox* box_;
    QList<ChoiceItem> choices_;
};

} // namespace halvern
