// SPDX-License-Identifier: MIT
#include "dialog/window/search_popup.h"

#include "platform/toolkit/plain_text.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace halvern {

namespace {

constexpr int kLeastPopupWidth = 400;
constexpr int kPopupMargin = 8;
constexpr int kHitPadding = 5;
constexpr int kHeadingPadding = 5;
constexpr double kShareOfScreen = 0.6;

bool startsGroup(const QModelIndex& index)
{
    const QString group = index.data(kGroupRole).toString();
    return !group.isEmpty() &&
           (index.row() == 0 || index.siblingAtRow(index.row() - 1).data(kGroupRole) != group);
}

QFont headingFont(const QFont& font)
{
    QFont small = font;
    small.setBold(true);
    small.setPointSizeF(font.pointSizeF() * 0.88);
    return small;
}

int headingHeight(const QFont& font)
{
    return QFontMetrics(headingFont(font)).height() + 2 * kHeadingPadding;
}

QColor paler(QColor colour)
{
    colour.setAlphaF(0.65F);
    return colour;
}

} // namespace

void MatchingRows::search(const QString& form)
{
    words_ = form.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    invalidateFilter();
}

bool MatchingRows::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    if (words_.isEmpty())
        return true;
    const QString text = sourceModel()->index(row, 0, parent).data(kSearchedRole).toString();
    return std::ranges::all_of(words_, [&](const QString& word) { return text.contains(word); });
}

QSize SearchRow::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const int lines = rows_ == SearchBox::Rows::twoLines ? 2 : 1;
    const int height = lines * option.fontMetrics.height() + 2 * kHitPadding;
    return {0, height + (startsGroup(index) ? headingHeight(option.font) : 0)};
}

void SearchRow::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem row = option;
    if (startsGroup(index)) {
        const int height = headingHeight(option.font);
        const QRect place = option.rect.adjusted(kPopupMargin, 0, -kPopupMargin, 0);
        painter->setFont(headingFont(option.font));
        painter->setPen(paler(option.palette.color(QPalette::Text)));
        painter->drawText(QRect(place.topLeft(), QSize(place.width(), height)),
                          Qt::AlignVCenter | Qt::AlignLeading | Qt::TextSingleLine,
                          index.data(kGroupRole).toString());
        row.rect.setTop(option.rect.top() + height);
    }
    row.text.clear();
    row.widget->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &row, painter, row.widget);
    paintTexts(painter, row, index);
}

void SearchRow::paintTexts(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const
{
    const QString text = index.data(Qt::DisplayRole).toString();
    const QString detail = index.data(kDetailRole).toString();
    const bool isSelected = option.state & QStyle::State_Selected;
    const bool isEnabled = index.flags() & Qt::ItemIsEnabled;
    const QColor colour = option.palette.color(isEnabled ? QPalette::Normal : QPalette::Disabled,
                                               isSelected ? QPalette::HighlightedText : QPalette::Text);
    QRect place = option.rect.adjusted(2 * kPopupMargin, kHitPadding, -kPopupMargin, -kHitPadding);
    const QFontMetrics metrics(option.font);
    const auto draw = [&](const QRect& where, Qt::Alignment side, const QString& words, const QColor& pen) {
        painter->setPen(pen);
        painter->drawText(where, int(side | Qt::AlignVCenter) | Qt::TextSingleLine,
                          metrics.elidedText(words, Qt::ElideRight, where.width()));
    };
    painter->setFont(option.font);
    if (rows_ == SearchBox::Rows::twoLines) {
        const int half = place.height() / 2;
        draw(place.adjusted(0, 0, 0, -half), Qt::AlignLeading, text, colour);
        draw(place.adjusted(0, half, 0, 0), Qt::AlignLeading, detail, paler(colour));
        return;
    }
    const int wanted = std::min(metrics.horizontalAdvance(detail) + kPopupMargin, place.width() / 2);
    const bool isMirrored = option.direction == Qt::RightToLeft;
    const QRect first =
        place.adjusted(isMirrored ? wanted + kPopupMargin : 0, 0, isMirrored ? 0 : -wanted - kPopupMargin, 0);
    draw(first, Qt::AlignLeading, text, colour);
    draw(place, Qt::AlignTrailing,
         detail.isEmpty() ? QString() : metrics.elidedText(detail, Qt::ElideRight, wanted), paler(colour));
}

SearchPopup::SearchPopup(SearchBox& box, SearchBox::Rows rows, const QString& searchName)
    : QFrame(&box, Qt::Popup),
      box_(box),
      rows_(new MatchingRows(this)),
      field_(new QLineEdit(this)),
      list_(new QListView(this)),
      nothing_(new QLabel(this))
{
    setObjectName(box.objectName() + QStringLiteral("Popup"));
    setFrameShape(QFrame::StyledPanel);
    field_->setObjectName(QStringLiteral("search"));
    field_->setClearButtonEnabled(true);
    field_->setPlaceholderText(searchName);
    setPlainName(field_, searchName);
    list_->setFrameShape(QFrame::NoFrame);
    list_->setItemDelegate(new SearchRow(rows, list_));
    list_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list_->setMouseTracking(true);
    setPlainName(list_, box.accessibleName());
    nothing_->setMargin(2 * kPopupMargin);
    nothing_->setWordWrap(true);
    nothing_->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    nothing_->setBackgroundRole(QPalette::Base);
    nothing_->setAutoFillBackground(true);
    nothing_->hide();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(1, 1, 1, 1);
    column->setSpacing(0);
    auto* top = new QVBoxLayout;
    top->setContentsMargins(kPopupMargin, kPopupMargin, kPopupMargin, kPopupMargin);
    top->addWidget(field_);
    column->addLayout(top);
    column->addWidget(nothing_, 1);
    column->addWidget(list_, 1);
    for (QWidget* watched : {static_cast<QWidget*>(field_), static_cast<QWidget*>(list_)})
        watched->installEventFilter(this);
    connect(field_, &QLineEdit::textChanged, this, &SearchPopup::search);
    connect(list_, &QListView::clicked, this, &SearchPopup::choose);
    connect(list_, &QListView::entered, list_, &QListView::setCurrentIndex);
}

void SearchPopup::open()
{
    if (rows_->sourceModel() != box_.model()) {
        rows_->setSourceModel(box_.model());
        list_->setModel(rows_);
        connect(list_->selectionModel(), &QItemSelectionModel::currentChanged, this, &SearchPopup::tell);
    }
    field_->clear();
    search();
    place();
    show();
    field_->setFocus(Qt::PopupFocusReason);
    list_->setCurrentIndex(rows_->mapFromSource(box_.model()->index(box_.currentIndex(), 0)));
    list_->scrollTo(list_->currentIndex(), QAbstractItemView::PositionAtCenter);
}

void SearchPopup::place()
{
    const QRect screen = box_.screen()->availableGeometry();
    const QRect box(box_.mapToGlobal(QPoint()), box_.size());
    const int rowHeight = list_->sizeHintForRow(std::min(1, rows_->rowCount() - 1));
    const int wanted = rows_->rowCount() * rowHeight + 6 * headingHeight(list_->font()) +
                       field_->sizeHint().height() + 2 * kPopupMargin + 4;
    const int below = screen.bottom() - box.bottom();
    const int above = box.top() - screen.top();
    const int most = std::min(std::max(below, above), int(screen.height() * kShareOfScreen));
    const QSize size(std::min(std::max(box.width(), kLeastPopupWidth), screen.width()),
                     std::min(wanted, most));
    const int x = std::clamp(box_.isRightToLeft() ? box.right() + 1 - size.width() : box.left(),
                             screen.left(), std::max(screen.right() + 1 - size.width(), screen.left()));
    const int y =
        below >= size.height() ? box.bottom() + 1 : std::max(box.top() - size.height(), screen.top());
    setGeometry(QRect(QPoint(x, y), size));
}

void SearchPopup::search()
{
    const QPersistentModelIndex before = list_->currentIndex();
    rows_->search(box_.formOf(field_->text()));
    const bool isEmpty = rows_->rowCount() == 0;
    list_->setVisible(!isEmpty);
    nothing_->setVisible(isEmpty);
    if (isEmpty) {
        setPlainText(nothing_, tr("Nothing here is called \"%1\".").arg(field_->text()));
        setPlainDescription(field_, nothing_->text());
        return;
    }
    setPlainDescription(field_, QString());
    if (field_->text().isEmpty() && before.isValid())
        list_->setCurrentIndex(before);
    else
        list_->setCurrentIndex(bestMatch());
}

// What begins with the words is meant rather than what has them somewhere.
QModelIndex SearchPopup::bestMatch() const
{
    const QString form = box_.formOf(field_->text());
    for (int row = 0; row < rows_->rowCount(); ++row) {
        const QModelIndex match = rows_->index(row, 0);
        if (match.data(kSearchedRole).toString().startsWith(form))
            return match;
    }
    return rows_->index(0, 0);
}

// The view tells it only while it has the keyboard itself.
void SearchPopup::tell(const QModelIndex& current)
{
    if (!QAccessible::isActive() || !current.isValid() || !isVisible())
        return;
    QAccessibleEvent event(list_, QAccessible::Focus);
    event.setChild(current.row());
    QAccessible::updateAccessibility(&event);
}

void SearchPopup::choose(const QModelIndex& match)
{
    if (match.isValid() && (match.flags() & Qt::ItemIsEnabled))
        box_.choose(rows_->mapToSource(match).row());
}

bool SearchPopup::takeKey(QObject* watched, QKeyEvent& key)
{
    switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        choose(list_->currentIndex());
        return true;
    case Qt::Key_Escape:
        hide();
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        if (watched == list_)
            return false;
        QCoreApplication::sendEvent(list_, &key);
        return true;
    default:
        break;
    }
    if (watched != list_ || key.text().isEmpty() || !key.text().front().isPrint())
        return false;
    field_->setFocus(Qt::OtherFocusReason);
    QCoreApplication::sendEvent(field_, &key);
    return true;
}

bool SearchPopup::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && takeKey(watched, *static_cast<QKeyEvent*>(event)))
        return true;
    return QFrame::eventFilter(watched, event);
}

// A press on the box closes its list, and is not to open it again.
void SearchPopup::mousePressEvent(QMouseEvent* event)
{
    const QPoint at = box_.mapFromGlobal(event->globalPosition().toPoint());
    setAttribute(Qt::WA_NoMouseReplay, box_.rect().contains(at));
    QFrame::mousePressEvent(event);
}

} // namespace halvern
