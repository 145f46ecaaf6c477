// SPDX-License-Identifier: MIT
#include "dialog/window/printer_rows.h"

#include "dialog/window/search_box.h"
#include "platform/foundation/list_text.h"
#include "platform/toolkit/plain_text.h"

#include <algorithm>

namespace halvern {

namespace {

constexpr int kLongestRowName = 120;
constexpr int kLongestRowState = 240;

QString rowText(const PrinterInfo& printer)
{
    return printer.info == printer.name
               ? displayText(printer.name, kLongestRowName)
               : QStringLiteral("%1  \u2013  %2")
                     .arg(isolated(printer.name), isolated(printer.info, kLongestRowName));
}

// A class is as well as the printers in it.
QString membersText(const PrinterInfo& printer, const std::vector<PrinterInfo>& all)
{
    QStringList members;
    for (const QString& name : printer.members) {
        const auto member = std::ranges::find(all, name, &PrinterInfo::name);
        members.append(member == all.end()
                           ? isolated(name)
                           : PrinterRows::tr("%1: %2").arg(isolated(name), isolated(stateText(*member))));
    }
    return displayText(listText(members), kLongestRowState);
}

QString detailText(const PrinterInfo& printer, const std::vector<PrinterInfo>& all)
{
    QStringList parts{displayText(stateText(printer), kLongestRowState)};
    if (!printer.members.isEmpty())
        parts.append(membersText(printer, all));
    for (const QString& part : {printer.location, printer.makeAndModel}) {
        if (!part.isEmpty() && !part.startsWith(printer.info))
            parts.append(isolated(part, kLongestRowName));
    }
    return parts.join(QStringLiteral("  \u00b7  "));
}

QString searchedText(const PrinterInfo& printer)
{
    return QStringList{printer.name, printer.info, printer.location, printer.makeAndModel}
        .join(QLatin1Char(' '))
        .toLower();
}

// Those used last in front, in that order; answers how many.
int lift(std::vector<PrinterInfo>& printers, const QStringList& recent)
{
    auto place = printers.begin();
    for (const QString& name : recent) {
        const auto found =
            std::find_if(place, printers.end(), [&](const PrinterInfo& p) { return p.name == name; });
        if (found != printers.end()) {
            std::rotate(place, found, std::next(found));
            ++place;
        }
    }
    return int(std::distance(printers.begin(), place));
}

} // namespace

void PrinterRows::setPrinters(const std::vector<PrinterInfo>& printers, const QStringList& recent,
                              const QString& selected)
{
    std::vector<PrinterInfo> wanted = printers;
    const bool isThere = std::ranges::find(wanted, selected, &PrinterInfo::name) != wanted.end();
    if (!selected.isEmpty() && !isThere) {
        PrinterInfo unknown;
        unknown.name = unknown.info = selected;
        wanted.insert(wanted.begin(), unknown);
    }
    const int lifted = lift(wanted, recent);
    if (lifted != recent_ ||
        !std::ranges::equal(wanted, printers_, {}, &PrinterInfo::name, &PrinterInfo::name)) {
        beginResetModel();
        printers_ = std::move(wanted);
        recent_ = lifted;
        endResetModel();
        return;
    }
    for (size_t i = 0; i < wanted.size(); ++i) {
        if (wanted[i] == printers_[i])
            continue;
        printers_[i] = wanted[i];
        Q_EMIT dataChanged(index(int(i)), index(int(i)));
    }
}

int PrinterRows::rowOf(const QString& name) const
{
    const auto found = std::ranges::find(printers_, name, &PrinterInfo::name);
    return name.isEmpty() || found == printers_.end() ? -1 : int(std::distance(printers_.begin(), found));
}

int PrinterRows::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(printers_.size());
}

// Without any that was used last, one kind of printers needs no heading.
QString PrinterRows::groupOf(int row) const
{
    if (row < recent_)
        return tr("Used last");
    if (printers_[size_t(row)].isDiscovered)
        return tr("Found on the network");
    return recent_ > 0 || printers_.back().isDiscovered ? tr("Printers") : QString();
}

QVariant PrinterRows::data(const QModelIndex& index, int role) const
{
    if (index.row() < 0 || index.row() >= rowCount())
        return {};
    const PrinterInfo& printer = printers_[size_t(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return rowText(printer);
    case Qt::UserRole:
        return printer.name;
    case Qt::AccessibleTextRole:
        return listText({rowText(printer), detailText(printer, printers_)});
    case kDetailRole:
        return detailText(printer, printers_);
    case kGroupRole:
        return groupOf(index.row());
    case kSearchedRole:
        return searchedText(printer);
    default:
        return {};
    }
}

} // namespace halvern
