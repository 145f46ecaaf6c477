// SPDX-License-Identifier: MIT
#include "dialog/window/hit_list.h"

#include "platform/toolkit/plain_text.h"

#include <QApplication>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>

namespace halvern {

namespace {

constexpr qsizetype kMostHits = 100;
constexpr int kMargin = 6;

// The words are bold and underlined: colour alone is not for everybody.
QList<QTextLayout::FormatRange> marks(const SearchWords& words, const QString& text)
{
    QList<QTextLayout::FormatRange> ranges;
    for (const auto& [from, length] : words.placesIn(text)) {
        QTextLayout::FormatRange range;
        range.start = from;
        range.length = length;
        range.format.setFontWeight(QFont::Bold);
        range.format.setFontUnderline(true);
        ranges.append(range);
    }
    return ranges;
}

void drawLine(QPainter* painter, const QStyleOptionViewItem& item, const QRect& room, const QString& text,
              const SearchWords& words)
{
    const QString shown = item.fontMetrics.elidedText(text, Qt::ElideRight, room.width());
    QTextLayout layout(shown, item.font);
    layout.setFormats(marks(words, shown));
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(room.width() + kMargin);
    layout.endLayout();
    layout.draw(painter, room.topLeft());
}

} // namespace

void HitList::clear(const SearchWords& words)
{
    beginResetModel();
    hits_.clear();
    words_ = words;
    endResetModel();
}

bool HitList::isFull() const
{
    return hits_.size() >= kMostHits;
}

void HitList::add(const SearchHit& hit)
{
    const bool isKnown = std::ranges::any_of(std::as_const(hits_), [&](const SearchHit& known) {
        return known.title == hit.title && known.choice == hit.choice && known.path == hit.path;
    });
    if (isFull() || isKnown)
        return;
    const auto place = std::ranges::upper_bound(std::as_const(hits_), hit.rank, {}, &SearchHit::rank);
    const int row = int(std::distance(hits_.cbegin(), place));
    beginInsertRows({}, row, row);
    hits_.insert(row, hit);
    endInsertRows();
}

int HitList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(hits_.size());
}

QVariant HitList::data(const QModelIndex& index, int role) const
{
    if (index.row() < 0 || index.row() >= hits_.size())
        return {};
    const SearchHit& hit = hits_[index.row()];
    const QString name = hit.choice.isEmpty() ? hit.title : tr("%1: %2").arg(hit.title, hit.choice);
    switch (role) {
    case Qt::DisplayRole:
        return itemText(name);
    case pathRole:
        return itemText(hit.path);
    case Qt::AccessibleTextRole:
        return displayText(tr("%1, in %2").arg(name, hit.path));
    default:
        return {};
    }
}

QSize HitDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const
{
    return {0, 2 * option.fontMetrics.lineSpacing() + 2 * kMargin};
}

void HitDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QString name = std::exchange(item.text, QString());
    const QStyle* style = item.widget ? item.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);
    QRect room = item.rect.adjusted(kMargin, kMargin, -kMargin, -kMargin);
    const bool isOn = item.state & QStyle::State_Selected;
    const auto* hits = qobject_cast<const HitList*>(index.model());
    painter->save();
    painter->setPen(item.palette.color(isOn ? QPalette::HighlightedText : QPalette::Text));
    drawLine(painter, item, room, name, hits ? hits->words() : SearchWords(QString()));
    room.setTop(room.top() + item.fontMetrics.lineSpacing());
    painter->setOpacity(0.7);
    drawLine(painter, item, room, index.data(HitList::pathRole).toString(), SearchWords(QString()));
    painter->restore();
}

} // namespace halvern
