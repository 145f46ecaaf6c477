// SPDX-License-Identifier: MIT
#include "dialog/window/photo_list_model.h"

#include "dialog/session/dialog_session.h"
#include "platform/foundation/list_text.h"
#include "platform/toolkit/plain_text.h"

#include <QFileInfo>
#include <QHash>

#include <algorithm>

namespace halvern {

namespace {

constexpr int kLongestPhotoName = 120;

QString nameOf(const Photo& photo)
{
    const QString name = QFileInfo(photo.path).fileName();
    return photo.pageNumber > 0
               ? PhotoListModel::tr("%1, page %2").arg(name, QString::number(photo.pageNumber))
               : name;
}

} // namespace

PhotoListModel::PhotoListModel(DialogSession& session, QObject* parent)
    : QAbstractListModel(parent), session_(session)
{
}

const Photo* PhotoListModel::photo(int row) const
{
    return size_t(row) < session_.photos().size() ? &session_.photos()[size_t(row)] : nullptr;
}

quint64 PhotoListModel::idAt(int row) const
{
    return size_t(row) < rows_.size() ? rows_[size_t(row)].id : 0;
}

std::vector<PhotoListModel::Row> PhotoListModel::currentRows() const
{
    std::vector<Row> rows;
    for (const Photo& photo : session_.photos())
        rows.push_back({photo.id, photo.placement.copies, false, photo.isDamaged});
    for (const size_t place : session_.chosenPages().pages)
        rows[place].isPrinted = true;
    return rows;
}

void PhotoListModel::refresh()
{
    const std::vector<Row> wanted = currentRows();
    if (wanted == rows_)
        return;
    dropMissing(wanted);
    sortAs(wanted);
    addNew(wanted);
    takeValues(wanted);
}

void PhotoListModel::dropMissing(const std::vector<Row>& wanted)
{
    QSet<quint64> there;
    for (const Row& row : wanted)
        there.insert(row.id);
    for (size_t end = rows_.size(); end > 0;) {
        if (there.contains(rows_[end - 1].id)) {
            --end;
            continue;
        }
        size_t first = end - 1;
        while (first > 0 && !there.contains(rows_[first - 1].id))
            --first;
        beginRemoveRows({}, int(first), int(end) - 1);
        rows_.erase(rows_.begin() + std::ptrdiff_t(first), rows_.begin() + std::ptrdiff_t(end));
        endRemoveRows();
        end = first;
    }
}

// Those that both have.
void PhotoListModel::sortAs(const std::vector<Row>& wanted)
{
    QHash<quint64, size_t> places;
    for (size_t i = 0; i < wanted.size(); ++i)
        places.insert(wanted[i].id, i);
    const auto place = [&](const Row& row) { return places.value(row.id); };
    if (std::ranges::is_sorted(rows_, {}, place))
        return;
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const std::vector<Row> before = rows_;
    std::ranges::sort(rows_, {}, place);
    QHash<quint64, int> now;
    for (size_t i = 0; i < rows_.size(); ++i)
        now.insert(rows_[i].id, int(i));
    for (const QModelIndex& kept : persistentIndexList())
        changePersistentIndex(kept, index(now.value(before[size_t(kept.row())].id)));
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

void PhotoListModel::addNew(const std::vector<Row>& wanted)
{
    for (size_t i = 0; i < wanted.size();) {
        size_t end = i;
        while (end < wanted.size() && (i >= rows_.size() || wanted[end].id != rows_[i].id))
            ++end;
        if (end == i) {
            ++i;
            continue;
        }
        beginInsertRows({}, int(i), int(end) - 1);
        rows_.insert(rows_.begin() + std::ptrdiff_t(i), wanted.begin() + std::ptrdiff_t(i),
                     wanted.begin() + std::ptrdiff_t(end));
        endInsertRows();
        i = end;
    }
}

void PhotoListModel::takeValues(const std::vector<Row>& wanted)
{
    const auto [first, other] = std::ranges::mismatch(rows_, wanted);
    if (first == rows_.end())
        return;
    const int from = int(first - rows_.begin());
    rows_ = wanted;
    Q_EMIT dataChanged(index(from), index(int(rows_.size()) - 1));
}

int PhotoListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(rows_.size());
}

QVariant PhotoListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || !photo(index.row()))
        return {};
    const Row& row = rows_[size_t(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return itemText(displayText(nameOf(*photo(index.row())), kLongestPhotoName));
    case Qt::AccessibleTextRole:
        return words(index.row());
    case Qt::ToolTipRole:
        return plainToolTip(toolTip(index.row()));
    case copiesRole:
        return row.copies;
    case isPrintedRole:
        return row.isPrinted;
    case isDamagedRole:
        return row.isDamaged;
    default:
        return {};
    }
}

Qt::ItemFlags PhotoListModel::flags(const QModelIndex& index) const
{
    return QAbstractListModel::flags(index) | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
}

// "Photo 3 of 12, lake.jpg, 2 copies"
QString PhotoListModel::words(int row) const
{
    const Row& values = rows_[size_t(row)];
    QStringList words{tr("Photo %1 of %2").arg(row + 1).arg(rows_.size()),
                      isolated(nameOf(*photo(row)), kLongestPhotoName),
                      values.copies == 1 ? tr("1 copy") : tr("%1 copies").arg(values.copies)};
    if (!values.isPrinted)
        words.append(tr("not printed"));
    if (values.isDamaged)
        words.append(tr("a part of it is missing"));
    return listText(words);
}

QString PhotoListModel::toolTip(int row) const
{
    return words(row) + QLatin1Char('\n') +
           tr("Drag it to another place, or press Alt and an arrow key. Plus and minus change the copies, "
              "Space "
              "whether it is printed, Delete takes it out, Return crops it. More with a right click.");
}

} // namespace halvern
