// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/ppd_model.h"

#include <QAbstractItemModel>

#include <vector>

namespace halvern {

/// A printer's options as a tree: their groups, the options of each, and below an option that takes several
/// choices a row for each of these. What is built into the printer is a group of its own at the end, and
/// nobody changes it here. Nothing is kept of a row: texts and values are looked up when somebody asks for
/// them, so a printer may have ten thousand options. Main thread only.
class OptionTree : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Column { titleColumn, valueColumn, putBackColumn };

    /// What a row is, and so how its value is chosen.
    enum class Row { group, list, custom, yesOrNo, several, part, equipment };

    enum Role {
        keyRole = Qt::UserRole, ///< the option's keyword
        rowRole,                ///< a Row
        keywordRole,            ///< the current value, of a part its choice
        changedRole,            ///< whether the value is another one than the printer's default
    };

    explicit OptionTree(QObject* parent) : QAbstractItemModel(parent) {}

    /// Shows these options of `model`, which outlives them; null: nothing.
    void setOptions(const PpdModel* model, const QStringList& keys);

    /// Leaves out what is as the printer has it by default.
    void showChangedOnly(bool only);

    /// Takes the current values.
    void refresh();

    /// The option's row; invalid if it is not shown.
    QModelIndex indexOf(const QString& key) const;

    /// The shown options, and how many of them differ from the printer's defaults.
    const QStringList& keys() const { return keys_; }

    int changedCount() const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

Q_SIGNALS:
    /// Somebody has chosen a value in the tree. Nothing has changed yet.
    void chosen(const QString& key, const QString& value);

private:
    struct Group {
        QString title;
        bool isEquipment = false;
        QStringList keys = {};
    };

    void collect();
    const Group* groupOf(const QModelIndex& index) const;
    QString keyOf(const QModelIndex& index) const;
    bool isPart(const QModelIndex& index) const;
    Row rowOf(const QModelIndex& index) const;
    const QList<ChoiceItem>& partsOf(const QString& key) const;
    QStringList chosenParts(const QString& key) const;
    QString withPart(const QString& key, const QString& choice, bool isOn) const;
    QVariant groupData(const Group& group, int column, int role) const;
    QVariant partData(const QModelIndex& index, int role) const;
    QVariant optionData(const QModelIndex& index, int role) const;
    QString textOf(const QString& key, const QString& value) const;
    QString shownText(const QModelIndex& index) const;
    QString toolTip(const QModelIndex& index) const;

    const PpdModel* model_ = nullptr;
    QStringList keys_;
    std::vector<Group> groups_;
    bool isChangedOnly_ = false;
    mutable QHash<QString, QList<ChoiceItem>> parts_; // of options that take several choices
};

} // namespace halvern
