// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/ppd_model.h"

#include <QAbstractListModel>

#include <functional>

class QComboBox;

namespace halvern {

/// An option's choices behind a pop-up: any number of them without an item each. A choice that the printer's
/// equipment rules out is listed and cannot be chosen; its tool tip says why. One that clashes with another
/// choice is listed with the reason and with what choosing it would change, and can be chosen. Main thread
/// only.
class ChoiceList : public QAbstractListModel {
    Q_OBJECT

public:
    /// What stands against a choice, in words.
    static constexpr int kReasonRole = Qt::UserRole + 1;
    /// Whether there is something, without working out what, and room to show it.
    static constexpr int kHasReasonRole = Qt::UserRole + 2;

    /// Becomes the model of `box`, and its child.
    explicit ChoiceList(QComboBox* box);

    void setChoices(const QList<ChoiceItem>& choices);

    /// Choices that clash with others, by keyword and with the reason, and what says of such a choice what
    /// else it would change. `alsoChanges` is asked when the choice comes into sight, once.
    void setClashes(const QHash<QString, QString>& clashes,
                    std::function<QString(const QString& keyword)> alsoChanges);

    /// Selects a choice; one that is not listed is added. An empty one selects nothing.
    void select(const QString& keyword);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    QString reason(const ChoiceItem& choice) const;
    QString toolTip(const ChoiceItem& choice) const;

    QComboBox* box_;
    QList<ChoiceItem> choices_;
    QHash<QString, QString> clashes_;
    std::function<QString(const QString& keyword)> alsoChanges_;
    mutable QHash<QString, QString> reasons_; // those that were asked for
};

} // namespace halvern
