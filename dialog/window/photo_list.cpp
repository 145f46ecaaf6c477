// SPDX-License-Identifier: MIT
#include "dialog/window/photo_list.h"

#include "dialog/preview/sheet_paint.h"
#include "dialog/preview/thumbnails.h"
#include "dialog/window/photo_list_model.h"

#include <QDrag>
#include <QDragMoveEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTimer>

#include <algorithm>

namespace halvern {

namespace {

constexpr int kEdge = 84;  // of a thumbnail
constexpr int kAround = 8; // of it in its place
constexpr int kReadAhead = 8;
constexpr int kScrollEdge = 32;
constexpr int kScrollEvery = 15; // milliseconds
constexpr double kPale = 0.3;
const QString kRows = QStringLiteral("application/x-halvern-photos");

class PhotoDelegate : public QStyledItemDelegate {
public:
    PhotoDelegate(const PhotoListModel& photos, const Thumbnails& thumbnails, QObject* parent)
        : QStyledItemDelegate(parent), photos_(photos), thumbnails_(thumbnails)
    {
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override
    {
        return {kEdge + 2 * kAround, kEdge + 2 * kAround + option.fontMetrics.lineSpacing() + 2};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const Photo* const photo = photos_.photo(index.row());
        if (!photo)
            return;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        const QPalette::ColorGroup group =
            option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
        const bool isSelected = option.state & QStyle::State_Selected;
        const QColor highlight = option.palette.color(group, QPalette::Highlight);
        if (isSelected) {
            QColor ground = highlight;
            ground.setAlphaF(0.45F);
            painter->setPen(Qt::NoPen);
            painter->setBrush(ground);
            painter->drawRoundedRect(QRectF(option.rect).adjusted(1, 1, -1, -1), 4, 4);
        }
        if (option.state & QStyle::State_HasFocus) {
            painter->setPen(QPen(highlight, 2.0));
            painter->setBrush(Qt::NoBrush);
            painter->drawRoundedRect(QRectF(option.rect).adjusted(2, 2, -2, -2), 4, 4);
        }
        const bool isPrinted = index.data(PhotoListModel::isPrintedRole).toBool();
        const QRectF picture = paintPicture(*painter, *photo, option.rect, isPrinted);
        if (const int copies = index.data(PhotoListModel::copiesRole).toInt(); copies != 1)
            paintBadge(*painter, picture.bottomRight(), QStringLiteral("×%1").arg(copies),
                       QColor(35, 35, 35, 225));
        if (index.data(PhotoListModel::isDamagedRole).toBool())
            paintBadge(*painter, picture.topRight() + QPointF(0, 18), QStringLiteral("!"),
                       QColor(176, 92, 0, 235));
        paintName(*painter, option, index, isPrinted);
        painter->restore();
    }

private:
    QRectF paintPicture(QPainter& painter, const Photo& photo, const QRect& place, bool isPrinted) const
    {
        const QImage image = thumbnails_.find(photo);
        const QSizeF known = photo.pixels.isEmpty() ? photo.ownSize : QSizeF(photo.pixels);
        const QSizeF shape = image.isNull() ? known : QSizeF(image.size());
        const QRectF room(place.left() + kAround, place.top() + kAround, kEdge, kEdge);
        // One with few pixels is not blown up.
        QRectF picture(QPointF(),
                       shape.isEmpty() ? room.size() : shape.scaled(room.size(), Qt::KeepAspectRatio));
        picture.moveCenter(room.center());
        painter.setOpacity(isPrinted ? 1.0 : kPale);
        if (image.isNull())
            painter.fillRect(picture, QColor(128, 128, 128, 110));
        else
            painter.drawImage(picture, image);
        if (thumbnails_.isBroken(photo)) {
            painter.setPen(QColor(90, 90, 90));
            painter.drawText(picture, Qt::AlignCenter, QStringLiteral("?"));
        }
        painter.setPen(QPen(QColor(0, 0, 0, 90), 1.0));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(picture);
        painter.setOpacity(1.0);
        return picture;
    }

    static void paintBadge(QPainter& painter, const QPointF& corner, const QString& text,
                           const QColor& colour)
    {
        QFont font = painter.font();
        font.setBold(true);
        painter.setFont(font);
        const QFontMetricsF metrics(font);
        QRectF badge(0, 0, std::max(metrics.horizontalAdvance(text) + 8.0, 18.0), 18.0);
        badge.moveBottomRight(corner - QPointF(2, 2));
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour);
        painter.drawRoundedRect(badge, 5, 5);
        painter.setPen(Qt::white);
        painter.drawText(badge, Qt::AlignCenter, text);
    }

    static void paintName(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index,
                          bool isPrinted)
    {
        painter.setFont(option.font);
        QColor ink = inkOn(neutralGround(option.palette));
        if (!isPrinted)
            ink.setAlphaF(0.55F);
        painter.setPen(ink);
        const int height = option.fontMetrics.lineSpacing();
        const QRect line(option.rect.left() + 3, option.rect.bottom() - height - 3, option.rect.width() - 6,
                         height);
        QFont font = option.font;
        font.setStrikeOut(!isPrinted);
        painter.setFont(font);
        painter.drawText(
            line, Qt::AlignCenter,
            option.fontMetrics.elidedText(index.data().toString(), Qt::ElideMiddle, line.width()));
    }

    const PhotoListModel& photos_;
    const Thumbnails& thumbnails_;
};

} // namespace

PhotoList::PhotoList(PhotoListModel& photos, Thumbnails& thumbnails, QWidget* parent)
    : QListView(parent), photos_(photos), thumbnails_(thumbnails), scrolling_(new QTimer(this))
{
    setModel(&photos);
    setItemDelegate(new PhotoDelegate(photos, thumbnails, this));
    setFlow(LeftToRight);
    setWrapping(false);
    // Places of one size are laid out without a look at those out of sight.
    setUniformItemSizes(true);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setFrameShape(NoFrame);
    setDragEnabled(true);
    setAcceptDrops(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    scrolling_->setInterval(kScrollEvery);
    connect(scrolling_, &QTimer::timeout, this, &PhotoList::scrollWhileDragged);
    connect(&thumbnails, &Thumbnails::ready, viewport(), qOverload<>(&QWidget::update));
    const auto lookAgain = [this] { inSight_ = {-1, -1}; };
    connect(&photos, &QAbstractItemModel::layoutChanged, this, lookAgain);
    connect(&photos, &QAbstractItemModel::rowsInserted, this, lookAgain);
    connect(&photos, &QAbstractItemModel::rowsRemoved, this, lookAgain);
}

QSize PhotoList::sizeHint() const
{
    const int row = kEdge + 2 * kAround + fontMetrics().lineSpacing() + 2;
    return {400, row + horizontalScrollBar()->sizeHint().height()};
}

QSize PhotoList::minimumSizeHint() const
{
    return {kEdge, sizeHint().height()};
}

std::vector<size_t> PhotoList::selectedRows() const
{
    std::vector<size_t> rows;
    for (const QModelIndex& index : selectionModel()->selectedIndexes())
        rows.push_back(size_t(index.row()));
    std::ranges::sort(rows);
    return rows;
}

// Those in sight, then their neighbours.
void PhotoList::wantVisible()
{
    const int rows = photos_.rowCount();
    const int middle = viewport()->height() / 2;
    const auto rowAt = [&](int x, int otherwise) {
        const QModelIndex index = indexAt({x, middle});
        return index.isValid() ? index.row() : otherwise;
    };
    int first = rowAt(0, 0);
    int last = rowAt(viewport()->width() - 1, rows - 1);
    if (first > last || isRightToLeft()) {
        first = rowAt(viewport()->width() - 1, 0);
        last = rowAt(0, rows - 1);
    }
    if (std::pair(first, last) == inSight_)
        return;
    inSight_ = {first, last};
    std::vector<Photo> wanted;
    const auto add = [&](int row) {
        if (const Photo* photo = photos_.photo(row))
            wanted.push_back(*photo);
    };
    for (int row = first; row <= last; ++row)
        add(row);
    for (int i = 1; i <= kReadAhead; ++i) {
        add(last + i);
        if (first - i >= 0)
            add(first - i);
    }
    thumbnails_.setEdge(int(kEdge * devicePixelRatioF()));
    thumbnails_.want(std::move(wanted));
}

void PhotoList::paintEvent(QPaintEvent* event)
{
    wantVisible();
    {
        QPainter painter(viewport());
        painter.fillRect(event->rect(), neutralGround(palette()));
    }
    QListView::paintEvent(event);
    if (!dropPlace_)
        return;
    const int last = photos_.rowCount() - 1;
    const bool isAtEnd = *dropPlace_ > last;
    const QRect rect = visualRect(photos_.index(std::min(*dropPlace_, last)));
    const int x = isAtEnd != isRightToLeft() ? rect.right() : rect.left();
    QPainter painter(viewport());
    painter.fillRect(QRect(x - 1, rect.top(), 3, rect.height()), palette().color(QPalette::Highlight));
}

// Return is no word for the dialog's button here.
void PhotoList::keyPressEvent(QKeyEvent* event)
{
    QListView::keyPressEvent(event);
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        event->accept();
}

void PhotoList::changeEvent(QEvent* event)
{
    QListView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        updateGeometry();
}

void PhotoList::startDrag(Qt::DropActions)
{
    const std::vector<size_t> rows = selectedRows();
    if (rows.empty())
        return;
    auto* data = new QMimeData;
    data->setData(kRows, QByteArray::number(qulonglong(rows.size())));
    auto* drag = new QDrag(this);
    drag->setMimeData(data);
    if (const Photo* photo = photos_.photo(currentIndex().row())) {
        QPixmap picture = QPixmap::fromImage(
            thumbnails_.find(*photo).scaled(kEdge, kEdge, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        if (!picture.isNull())
            drag->setPixmap(picture);
    }
    drag->exec(Qt::MoveAction);
    setDropPlace(std::nullopt);
}

int PhotoList::rowBehind(const QPoint& at) const
{
    const QModelIndex index = indexAt({at.x(), viewport()->height() / 2});
    if (!index.isValid())
        return photos_.rowCount();
    const bool isInSecondHalf = (at.x() > visualRect(index).center().x()) != isRightToLeft();
    return index.row() + (isInSecondHalf ? 1 : 0);
}

void PhotoList::setDropPlace(std::optional<int> row)
{
    if (!row)
        scrolling_->stop();
    if (dropPlace_ == row)
        return;
    dropPlace_ = row;
    viewport()->update();
}

void PhotoList::dragEnterEvent(QDragEnterEvent* event)
{
    event->setAccepted(event->source() == this && event->mimeData()->hasFormat(kRows));
}

void PhotoList::dragMoveEvent(QDragMoveEvent* event)
{
    if (event->source() != this || !event->mimeData()->hasFormat(kRows)) {
        event->ignore();
        return;
    }
    const QPoint at = event->position().toPoint();
    setDropPlace(rowBehind(at));
    const int width = viewport()->width();
    scrollStep_ = at.x() < kScrollEdge ? at.x() - kScrollEdge : std::max(0, at.x() - (width - kScrollEdge));
    if (scrollStep_ != 0)
        scrolling_->start();
    else
        scrolling_->stop();
    event->setDropAction(Qt::MoveAction);
    event->accept();
}

void PhotoList::scrollWhileDragged()
{
    QScrollBar* const bar = horizontalScrollBar();
    bar->setValue(bar->value() + (isRightToLeft() ? -scrollStep_ : scrollStep_));
}

void PhotoList::dragLeaveEvent(QDragLeaveEvent*)
{
    setDropPlace(std::nullopt);
}

void PhotoList::dropEvent(QDropEvent* event)
{
    const int before = rowBehind(event->position().toPoint());
    setDropPlace(std::nullopt);
    if (event->source() != this)
        return;
    event->setDropAction(Qt::MoveAction);
    event->accept();
    Q_EMIT dropped(size_t(before));
}

} // namespace halvern
