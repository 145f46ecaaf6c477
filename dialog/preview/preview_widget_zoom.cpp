// SPDX-License-Identifier: MIT
// The preview at 1:1: a screen pixel for each printer dot, and moving about in it.
#include "dialog/preview/preview_widget.h"

#include "dialog/preview/screen_converter.h"
#include "dialog/preview/sharp_photo_reader.h"
#include "platform/foundation/units.h"

#include <QKeyEvent>
#include <QPainter>
#include <QToolButton>
#include <QWheelEvent>

#include <algorithm>

namespace halvern {

namespace {

constexpr int kQuarters = 4;
constexpr double kKeyStep = 48.0;   // logical pixels
constexpr double kEdgeRoom = 24.0;  // logical pixels of ground that can be seen beyond the page
constexpr double kWheelNotch = 1.0; // logical pixels for an eighth of a degree

double held(double middle, double half, double length, double room)
{
    return length <= 2.0 * half ? length / 2.0 : std::clamp(middle, half - room, length - half + room);
}

// Where a window of a picture lies once the picture is turned clockwise.
QRect turned(const QRect& window, const QSize& picture, int quarterTurns)
{
    const int right = picture.width() - window.x() - window.width();
    const int below = picture.height() - window.y() - window.height();
    switch (quarterTurns) {
    case 1:
        return {QPoint(below, window.x()), window.size().transposed()};
    case 2:
        return {QPoint(right, below), window.size()};
    case 3:
        return {QPoint(window.y(), right), window.size().transposed()};
    default:
        return window;
    }
}

QImage turned(const QImage& image, int quarterTurns)
{
    return quarterTurns == 0 ? image : image.transformed(QTransform().rotate(90.0 * quarterTurns));
}

} // namespace

double PreviewWidget::dotsPerPoint() const
{
    return page_.resolution / kPointsPerInch;
}

QRect PreviewWidget::photoInDots() const
{
    const QRectF photo = page_.layout.photo;
    const double scale = dotsPerPoint();
    const QRect dots(qRound(photo.left() * scale), qRound(photo.top() * scale), qRound(photo.width() * scale),
                     qRound(photo.height() * scale));
    return {dots.topLeft(), dots.size().expandedTo(QSize(1, 1))};
}

QSize PreviewWidget::storedDots() const
{
    const QSize dots = photoInDots().size();
    return page_.layout.quarterTurns % 2 != 0 ? dots.transposed() : dots;
}

bool PreviewWidget::isReadingDetail() const
{
    return reader_->isReading();
}

void PreviewWidget::setZoomed(bool zoomed, std::optional<QPointF> around)
{
    isZoomed_ = zoomed && hasPage_;
    converter_->forget();
    zoomButton_->setChecked(isZoomed_);
    if (isZoomed_) {
        middle_ = around.value_or(page_.layout.visible().center());
        keepPageInView();
        readDetail();
    } else {
        // The whole photo is large, and the small copy does for the whole page.
        reader_->forget();
        screen_.setDetail({});
    }
    showState();
}

void PreviewWidget::readDetail()
{
    reader_->read(page_.photo, storedDots());
    if (reader_->isReading()) {
        detailProblem_.clear();
        screen_.setDetail({});
    }
}

void PreviewWidget::keepPageInView()
{
    const double points = devicePixelRatioF() / dotsPerPoint(); // in a logical pixel
    const QSizeF half = QSizeF(viewRect().size()) * (points / 2.0);
    const QSizeF page = page_.layout.page;
    middle_ = {held(middle_.x(), half.width(), page.width(), kEdgeRoom * points),
               held(middle_.y(), half.height(), page.height(), kEdgeRoom * points)};
}

void PreviewWidget::pan(const QPointF& by)
{
    middle_ -= by * (devicePixelRatioF() / dotsPerPoint());
    keepPageInView();
    update();
}

void PreviewWidget::paintDots(QPainter& painter)
{
    const double ratio = devicePixelRatioF();
    const double scale = dotsPerPoint();
    const QRect view = viewRect();
    // Everything below is in dots of the page, which are the screen's pixels.
    const QPoint corner = (middle_ * scale - QPointF(view.width(), view.height()) * (ratio / 2.0)).toPoint();
    const QRect window(corner, (QSizeF(view.size()) * ratio).toSize());
    const auto toWidget = [&](const QRectF& dots) {
        return QRectF(QPointF(view.topLeft()) + (dots.topLeft() - QPointF(corner)) / ratio,
                      dots.size() / ratio);
    };
    painter.save();
    painter.setClipRect(view);
    const QSizeF page = page_.layout.page * scale;
    painter.fillRect(toWidget(QRectF(QPointF(), page)), converter_->paper());
    painter.save();
    painter.translate(toWidget(QRectF(QPointF(), page)).topLeft());
    painter.scale(scale / ratio, scale / ratio);
    paintOthers(painter, scale);
    paintMarks(painter, page_.sheet.sheet, photoCaptions());
    painter.restore();
    const QRectF visible = page_.layout.visible();
    const QRect shown = QRectF(visible.topLeft() * scale, visible.size() * scale).toAlignedRect();
    const QRect photo = photoInDots();
    const QRect seen = window.intersected(shown).intersected(photo);
    if (!seen.isEmpty()) {
        // Converted as the photo is stored: a turned part would be a new picture each time.
        const int turns = page_.layout.quarterTurns;
        const QRect window =
            turned(seen.translated(-photo.topLeft()), photo.size(), (kQuarters - turns) % kQuarters);
        const ScreenConverter::Piece fresh{screen_.part(storedDots(), window), window};
        const ScreenConverter::Piece& shown = converter_->find(fresh, page_.current);
        // Moments ago the window lay elsewhere.
        painter.setClipRect(toWidget(seen), Qt::IntersectClip);
        for (const ScreenConverter::Piece& piece : {fresh, shown}) {
            QImage image = turned(piece.image, turns);
            image.setDevicePixelRatio(ratio);
            const QRect place = turned(piece.place, storedDots(), turns);
            painter.drawImage(toWidget(place.translated(photo.topLeft())).topLeft(), image);
        }
    }
    painter.restore();
}

void PreviewWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (!hasPage_ || event->button() != Qt::LeftButton)
        return;
    const double scale = sheetRect().width() / page_.layout.page.width();
    setZoomed(!isZoomed_, (event->position() - sheetRect().topLeft()) / scale);
}

void PreviewWidget::wheelEvent(QWheelEvent* event)
{
    if (!isZoomed_) {
        event->ignore();
        return;
    }
    const bool isTouchpad = !event->pixelDelta().isNull();
    QPointF by = isTouchpad ? QPointF(event->pixelDelta()) : QPointF(event->angleDelta()) * kWheelNotch;
    if (event->modifiers() & Qt::ShiftModifier && !isTouchpad)
        by = by.transposed();
    pan(by);
}

void PreviewWidget::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    if (key == Qt::Key_Z && hasPage_ && !(event->modifiers() & ~Qt::ShiftModifier)) {
        setZoomed(!isZoomed_);
    } else if (key == Qt::Key_C && hasPage_ && !(event->modifiers() & ~Qt::ShiftModifier)) {
        setCropping(true);
    } else if (!isZoomed_) {
        QWidget::keyPressEvent(event);
    } else if (key == Qt::Key_Left || key == Qt::Key_Right) {
        pan({key == Qt::Key_Left ? kKeyStep : -kKeyStep, 0.0});
    } else if (key == Qt::Key_Up || key == Qt::Key_Down) {
        pan({0.0, key == Qt::Key_Up ? kKeyStep : -kKeyStep});
    } else if (key == Qt::Key_Escape) {
        setZoomed(false);
    } else {
        QWidget::keyPressEvent(event);
    }
}

} // namespace halvern
