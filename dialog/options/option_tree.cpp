// SPDX-License-Identifier: MIT
#include "dialog/options/option_tree.h"

#include "platform/toolkit/plain_text.h"

#include <QFont>

#include <algorithm>

namespace halvern {

namespace {

// An index's id says where its parent is: nothing for a group, the group's number for an option, and above it
// the option's row for a choice. Each counts from one.
constexpr int kRowShift = 32;

quintptr idBelow(int group, int option = -1)
{
    return quintptr(group + 1) | (quintptr(option + 1) << kRowShift);
}

int groupIn(quintptr id)
{
    return int(id & 0xFFFFFFFFU) - 1;
}

int optionIn(quintptr id)
{
    return int(id >> kRowShift) - 1;
}

// PPDs spell it as they like.
bool isTrue(const QString& value)
{
    return value.compare(QLatin1StringView("True"), Qt::CaseInsensitive) == 0;
}

} // namespace

void OptionTree::setOptions(const PpdModel* model, const QStringList& keys)
{
    beginResetModel();
    model_ = model;
    keys_ = keys;
    parts_.clear();
    collect();
    endResetModel();
}

void OptionTree::showChangedOnly(bool only)
{
    beginResetModel();
    isChangedOnly_ = only;
    collect();
    endResetModel();
}

void OptionTree::collect()
{
    groups_.clear();
    Group equipment{tr("Installed in the printer (set by whoever installed it)"), true};
    QHash<QString, size_t> known;
    QHash<int, QString> titles;
    for (const QString& key : model_ ? keys_ : QStringList()) {
        if (isChangedOnly_ && !model_->changedKeys().contains(key))
            continue;
        if (model_->isInstallable(key)) {
            equipment.keys.append(key);
            continue;
        }
        QString& title = titles[model_->groupNumber(key)];
        if (title.isNull())
            title = model_->groupText(key);
        const auto found = known.constFind(title);
        const size_t group = found == known.cend() ? groups_.size() : *found;
        if (found == known.cend()) {
            known.insert(title, group);
            groups_.push_back({title});
        }
        groups_[group].keys.append(key);
    }
    if (!equipment.keys.isEmpty())
        groups_.push_back(std::move(equipment));
}

void OptionTree::refresh()
{
    if (isChangedOnly_) {
        const auto shown = [this] {
            QStringList keys;
            for (const Group& group : groups_)
                keys += group.keys;
            return keys;
        };
        const QStringList before = shown();
        const std::vector<Group> groups = groups_;
        collect();
        if (shown() != before) {
            std::vector<Group> now = std::exchange(groups_, groups);
            beginResetModel();
            groups_ = std::move(now);
            endResetModel();
            return;
        }
    }
    for (int g = 0; g < rowCount(); ++g) {
        const QModelIndex group = index(g, 0);
        Q_EMIT dataChanged(index(0, 0, group), index(rowCount(group) - 1, putBackColumn, group));
    }
    for (auto it = parts_.cbegin(); it != parts_.cend(); ++it) {
        if (const QModelIndex option = indexOf(it.key()); rowCount(option) > 0)
            Q_EMIT dataChanged(index(0, valueColumn, option),
                               index(rowCount(option) - 1, valueColumn, option));
    }
}

QModelIndex OptionTree::indexOf(const QString& key) const
{
    for (size_t g = 0; g < groups_.size(); ++g) {
        if (const qsizetype row = groups_[g].keys.indexOf(key); row >= 0)
            return createIndex(int(row), titleColumn, idBelow(int(g)));
    }
    return {};
}

int OptionTree::changedCount() const
{
    return model_ ? int(std::ranges::count_if(
                        keys_, [this](const QString& key) { return model_->changedKeys().contains(key); }))
                  : 0;
}

QModelIndex OptionTree::index(int row, int column, const QModelIndex& parent) const
{
    if (row < 0 || column < 0 || column > putBackColumn || row >= rowCount(parent))
        return {};
    if (!parent.isValid())
        return createIndex(row, column, quintptr(0));
    if (parent.internalId() == 0)
        return createIndex(row, column, idBelow(parent.row()));
    return createIndex(row, column, idBelow(groupIn(parent.internalId()), parent.row()));
}

QModelIndex OptionTree::parent(const QModelIndex& index) const
{
    const quintptr id = index.isValid() ? index.internalId() : 0;
    if (id == 0)
        return {};
    if (!isPart(index))
        return createIndex(groupIn(id), 0, quintptr(0));
    return createIndex(optionIn(id), 0, idBelow(groupIn(id)));
}

int OptionTree::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return int(groups_.size());
    if (parent.column() != 0 || isPart(parent))
        return 0;
    if (parent.internalId() == 0)
        return int(groups_[size_t(parent.row())].keys.size());
    return rowOf(parent) == Row::several ? int(partsOf(keyOf(parent)).size()) : 0;
}

int OptionTree::columnCount(const QModelIndex& /*parent*/) const
{
    return putBackColumn + 1;
}

bool OptionTree::isPart(const QModelIndex& index) const
{
    return optionIn(index.internalId()) >= 0;
}

const OptionTree::Group* OptionTree::groupOf(const QModelIndex& index) const
{
    const int group = index.internalId() == 0 ? index.row() : groupIn(index.internalId());
    return size_t(group) < groups_.size() ? &groups_[size_t(group)] : nullptr;
}

QString OptionTree::keyOf(const QModelIndex& index) const
{
    if (index.internalId() == 0)
        return {};
    const int row = isPart(index) ? optionIn(index.internalId()) : index.row();
    return groupOf(index)->keys.value(row);
}

OptionTree::Row OptionTree::rowOf(const QModelIndex& index) const
{
    if (index.internalId() == 0)
        return Row::group;
    if (isPart(index))
        return Row::part;
    if (groupOf(index)->isEquipment)
        return Row::equipment;
    const QString key = keyOf(index);
    switch (model_->kind(key)) {
    case OptionKind::several:
        return Row::several;
    case OptionKind::yesOrNo:
        return Row::yesOrNo;
    case OptionKind::one:
        break;
    }
    return model_->customValue(key).kind == CustomValue::Kind::none ? Row::list : Row::custom;
}

const QList<ChoiceItem>& OptionTree::partsOf(const QString& key) const
{
    auto found = parts_.find(key);
    if (found == parts_.end())
        found = parts_.insert(key, model_->option(key).choices);
    return *found;
}

QStringList OptionTree::chosenParts(const QString& key) const
{
    return model_->value(key).split(QLatin1Char(','), Qt::SkipEmptyParts);
}

// What switches the option off goes with nothing else.
QString OptionTree::withPart(const QString& key, const QString& choice, bool isOn) const
{
    QStringList chosen;
    const QStringList before = chosenParts(key);
    for (const ChoiceItem& part : partsOf(key)) {
        const bool isWanted = part.keyword == choice ? isOn : before.contains(part.keyword);
        const bool isOther =
            part.keyword != choice && isOn && isOffChoice(part.keyword) != isOffChoice(choice);
        if (isWanted && !isOther)
            chosen.append(part.keyword);
    }
    if (!chosen.isEmpty())
        return chosen.join(QLatin1Char(','));
    for (const ChoiceItem& part : partsOf(key)) {
        if (isOffChoice(part.keyword))
            return part.keyword;
    }
    return model_->defaultValue(key);
}

QVariant OptionTree::data(const QModelIndex& index, int role) const
{
    const Group* group = index.isValid() && model_ ? groupOf(index) : nullptr;
    if (!group)
        return {};
    if (role == rowRole)
        return int(rowOf(index));
    if (role == keyRole)
        return keyOf(index);
    if (index.internalId() == 0)
        return groupData(*group, index.column(), role);
    return isPart(index) ? partData(index, role) : optionData(index, role);
}

QVariant OptionTree::groupData(const Group& group, int column, int role) const
{
    if (column != titleColumn)
        return {};
    if (role == Qt::FontRole) {
        QFont font;
        font.setBold(true);
        return font;
    }
    if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole)
        return itemText(group.title);
    return role == Qt::ToolTipRole ? QVariant(plainToolTip(group.title)) : QVariant();
}

QVariant OptionTree::partData(const QModelIndex& index, int role) const
{
    const ChoiceItem part = partsOf(keyOf(index)).value(index.row());
    if (role == keywordRole)
        return part.keyword;
    if (index.column() != valueColumn)
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        return itemText(part.text);
    case Qt::ToolTipRole:
        return plainToolTip(part.obstacle.isEmpty() ? part.text : part.obstacle);
    case Qt::CheckStateRole:
        return chosenParts(keyOf(index)).contains(part.keyword) ? Qt::Checked : Qt::Unchecked;
    default:
        return {};
    }
}

QString OptionTree::textOf(const QString& key, const QString& value) const
{
    const QString missing = value.isEmpty() ? model_->unlistedDefault(key) : QString();
    if (!missing.isEmpty())
        return tr("%1 (the printer's default)").arg(missing);
    const bool isLeftOut = value.isEmpty() && model_->kind(key) == OptionKind::one;
    return isLeftOut ? tr("As the printer is set") : model_->choiceText(key, value);
}

QString OptionTree::shownText(const QModelIndex& index) const
{
    const QString key = keyOf(index);
    switch (index.column()) {
    case titleColumn:
        return model_->optionText(key);
    case valueColumn:
        return textOf(key, model_->value(key));
    default:
        return model_->changedKeys().contains(key) ? QStringLiteral("\u21BA") : QString();
    }
}

QString OptionTree::toolTip(const QModelIndex& index) const
{
    const QString key = keyOf(index);
    if (index.column() != putBackColumn)
        return index.column() == titleColumn ? tr("%1 (%2)").arg(model_->optionText(key), key)
                                             : shownText(index);
    return model_->changedKeys().contains(key)
               ? tr("Put back to the printer's default: %1").arg(textOf(key, model_->defaultValue(key)))
               : QString();
}

QVariant OptionTree::optionData(const QModelIndex& index, int role) const
{
    const QString key = keyOf(index);
    const bool isChanged = model_->changedKeys().contains(key);
    switch (role) {
    case Qt::DisplayRole:
        return itemText(shownText(index));
    case Qt::ToolTipRole:
        return plainToolTip(toolTip(index));
    case keywordRole:
        return model_->value(key);
    case changedRole:
        return isChanged;
    case Qt::FontRole: {
        QFont font;
        font.setBold(isChanged && index.column() == titleColumn);
        return font;
    }
    case Qt::TextAlignmentRole:
        return index.column() == putBackColumn ? QVariant(Qt::AlignCenter) : QVariant();
    case Qt::CheckStateRole:
        return index.column() == valueColumn && rowOf(index) == Row::yesOrNo
                   ? QVariant(isTrue(model_->value(key)) ? Qt::Checked : Qt::Unchecked)
                   : QVariant();
    case Qt::AccessibleTextRole:
        if (index.column() == putBackColumn)
            return displayText(toolTip(index));
        return displayText(index.column() == valueColumn
                               ? tr("%1: %2").arg(model_->optionText(key), shownText(index))
                               : model_->optionText(key));
    case Qt::AccessibleDescriptionRole:
        return isChanged ? tr("Changed from the printer's default") : QString();
    default:
        return {};
    }
}

bool OptionTree::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!(flags(index) & (Qt::ItemIsEditable | Qt::ItemIsUserCheckable)))
        return false;
    const QString key = keyOf(index);
    const bool isOn = value.toInt() == Qt::Checked;
    QString wanted = value.toString();
    if (role == Qt::CheckStateRole)
        wanted =
            isPart(index) ? withPart(key, partsOf(key).value(index.row()).keyword, isOn) : valueText(isOn);
    if (wanted == model_->value(key))
        return false;
    Q_EMIT chosen(key, wanted);
    return true;
}

Qt::ItemFlags OptionTree::flags(const QModelIndex& index) const
{
    if (!index.isValid() || !model_)
        return {};
    const Qt::ItemFlags seen = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (index.column() != valueColumn)
        return seen;
    switch (rowOf(index)) {
    case Row::list:
    case Row::custom:
        return seen | Qt::ItemIsEditable;
    case Row::yesOrNo:
        return seen | Qt::ItemIsUserCheckable;
    case Row::part: {
        const bool isPossible = partsOf(keyOf(index)).value(index.row()).obstacle.isEmpty();
        return isPossible ? seen | Qt::ItemIsUserCheckable : Qt::ItemIsSelectable;
    }
    default:
        return seen;
    }
}

} // namespace halvern
