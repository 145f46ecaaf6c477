// SPDX-License-Identifier: MIT
#include "dialog/preview/crop_editor.h"

#include "platform/toolkit/plain_text.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>

namespace halvern {

namespace {

constexpr double kCropMargin = 24.0;
constexpr double kHandle = 10.0;
constexpr double kGrip = 16.0;        // how near to a corner the mouse has to be
constexpr double kCropKeyStep = 0.02; // of what is seen
constexpr double kFineStep = 0.004;   // with Shift
constexpr double kZoomStep = 1.08;
constexpr double kCropWheelNotch = 120.0;

std::array<QPointF, 4> cornersOf(const QRectF& rect)
{
    return {rect.topLeft(), rect.topRight(), rect.bottomLeft(), rect.bottomRight()};
}

} // namespace

bool looksSoft(const PageLayout& layout, const Photo& photo)
{
    const double pixels = photo.isPdf || photo.pixels.isEmpty() ? 0.0 : pixelsPerInch(layout, photo.pixels);
    return pixels > 0.0 && pixels < kSoftPixelsPerInch;
}

QString resolutionText(const PageLayout& layout, const Photo& photo)
{
    if (photo.isPdf || photo.pixels.isEmpty())
        return {};
    const int pixels = int(std::lround(pixelsPerInch(layout, photo.pixels)));
    return looksSoft(layout, photo) ? CropEditor::tr("%1 pixels per inch: it will look soft").arg(pixels)
                                    : CropEditor::tr("%1 pixels per inch").arg(pixels);
}

CropEditor::CropEditor(QWidget* parent)
    : QWidget(parent), buttons_(new QWidget(this)), words_(new QLabel(this)), all_(nullptr)
{
    setObjectName(QStringLiteral("cropEditor"));
    setAccessibleName(tr("Crop"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    words_->setObjectName(QStringLiteral("cropWords"));
    words_->setAlignment(Qt::AlignCenter);
    QPalette light = palette();
    light.setColor(QPalette::WindowText, QColor(220, 220, 220));
    words_->setPalette(light);
    auto* row = new QHBoxLayout(buttons_);
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch();
    connect(addButton(QStringLiteral("cropCenter"), tr("Center"), tr("Put the frame in the middle (C)")),
            &QToolButton::clicked, this, &CropEditor::centre);
    connect(addButton(QStringLiteral("cropTurn"), tr("Turn"), tr("Turn the photo clockwise (R)")),
            &QToolButton::clicked, this, &CropEditor::turn);
    connect(addButton(QStringLiteral("cropWhole"), tr("As Large As Can Be"),
                      tr("Show as much of the photo as can be (0)")),
            &QToolButton::clicked, this, &CropEditor::showWhole);
    all_ = addButton(QStringLiteral("cropAll"), tr("Same for All"),
                     tr("Crop and turn all photos like this one"));
    connect(all_, &QToolButton::clicked, this, &CropEditor::sameForAllAsked);
    connect(addButton(QStringLiteral("cropDone"), tr("Done"), tr("Back to the sheet (Esc)")),
            &QToolButton::clicked, this, &CropEditor::doneAsked);
    row->addStretch();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(8, 8, 8, 8);
    column->addStretch();
    column->addWidget(words_);
    column->addWidget(buttons_);
    hide();
}

QToolButton* CropEditor::addButton(const QString& name, const QString& text, const QString& tip)
{
    auto* button = new QToolButton(buttons_);
    button->setObjectName(name);
    button->setText(text);   // plain: ours
    button->setToolTip(tip); // plain: ours
    button->setFocusPolicy(Qt::TabFocus);
    buttons_->layout()->addWidget(button);
    return button;
}

void CropEditor::edit(const Photo& photo, const PageLayout& layout, const QImage& copy)
{
    photo_ = photo;
    layout_ = layout;
    placement_ = held(photo.placement);
    if (copySource_ != copy.cacheKey() || copyTurns_ != placement_.quarterTurns)
        copy_ = copy.transformed(QTransform().rotate(90.0 * placement_.quarterTurns));
    copySource_ = copy.cacheKey();
    copyTurns_ = placement_.quarterTurns;
    tell();
}

void CropEditor::setHasOthers(bool hasOthers)
{
    all_->setVisible(hasOthers);
}

void CropEditor::tell()
{
    const QString resolution = resolutionText(layout_, photo_);
    const QRectF seen = cropOf(layout_);
    const int percent = int(std::lround(100.0 * seen.width() * seen.height()));
    QString words = tr("%1 % of the photo").arg(percent);
    if (!resolution.isEmpty())
        words += QStringLiteral("  ·  ") + resolution;
    setPlainText(words_, words);
    QPalette colours = words_->palette();
    colours.setColor(QPalette::WindowText,
                     looksSoft(layout_, photo_) ? QColor(255, 170, 120) : QColor(220, 220, 220));
    words_->setPalette(colours);
    setPlainDescription(this, words);
    update();
}

QList<QWidget*> CropEditor::tabOrder() const
{
    QList<QWidget*> order{const_cast<CropEditor*>(this)};
    for (QToolButton* button : buttons_->findChildren<QToolButton*>())
        order.append(button);
    return order;
}

QRectF CropEditor::photoRect() const
{
    const QRectF room(kCropMargin, kCropMargin, width() - 2.0 * kCropMargin, words_->y() - 1.5 * kCropMargin);
    const QSizeF shape = turnedSize(layout_.photo.size(), layout_.layoutsTurns);
    QRectF rect(QPointF(), shape.scaled(room.size().expandedTo({1.0, 1.0}), Qt::KeepAspectRatio));
    rect.moveCenter(room.center());
    return rect;
}

QRectF CropEditor::frameRect() const
{
    const QRectF photo = photoRect();
    const QRectF seen = cropOf(layout_);
    return {photo.left() + seen.left() * photo.width(), photo.top() + seen.top() * photo.height(),
            seen.width() * photo.width(), seen.height() * photo.height()};
}

QPointF CropEditor::share(const QPointF& at) const
{
    const QRectF photo = photoRect();
    return {(at.x() - photo.left()) / std::max(photo.width(), 1.0),
            (at.y() - photo.top()) / std::max(photo.height(), 1.0)};
}

void CropEditor::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(rect(), QColor(38, 38, 38));
    const QRectF photo = photoRect();
    if (copy_.isNull())
        painter.fillRect(photo, QColor(90, 90, 90));
    else
        painter.drawImage(photo, copy_);
    const QRectF frame = frameRect();
    QPainterPath outside;
    outside.addRect(photo);
    outside.addRect(frame);
    painter.fillPath(outside, QColor(20, 20, 20, 165));
    painter.setPen(QPen(QColor(255, 255, 255, 110), 1.0));
    for (const double third : {1.0 / 3.0, 2.0 / 3.0}) {
        painter.drawLine(QPointF(frame.left() + frame.width() * third, frame.top()),
                         QPointF(frame.left() + frame.width() * third, frame.bottom()));
        painter.drawLine(QPointF(frame.left(), frame.top() + frame.height() * third),
                         QPointF(frame.right(), frame.top() + frame.height() * third));
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(hasFocus() ? palette().color(QPalette::Highlight) : QColor(Qt::white), 2.0));
    painter.drawRect(frame);
    painter.setPen(QPen(QColor(40, 40, 40), 1.0));
    painter.setBrush(Qt::white);
    for (const QPointF& corner : cornersOf(frame))
        painter.drawRect(QRectF(corner - QPointF(kHandle, kHandle) / 2.0, QSizeF(kHandle, kHandle)));
}

std::optional<QPointF> CropEditor::anchorFor(const QPointF& at) const
{
    const std::array<QPointF, 4> corners = cornersOf(frameRect());
    const std::array<QPointF, 4> seen = cornersOf(cropOf(layout_));
    for (size_t i = 0; i < corners.size(); ++i) {
        if (QLineF(corners[i], at).length() <= kGrip)
            return seen[corners.size() - 1 - i];
    }
    return std::nullopt;
}

void CropEditor::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    lastMouse_ = event->position();
    anchor_ = anchorFor(event->position());
    isDragged_ = true;
    if (!anchor_)
        setCursor(Qt::ClosedHandCursor);
}

void CropEditor::mouseMoveEvent(QMouseEvent* event)
{
    if (!isDragged_) {
        setCursor(anchorFor(event->position())              ? Qt::SizeAllCursor
                  : frameRect().contains(event->position()) ? Qt::OpenHandCursor
                                                            : Qt::ArrowCursor);
        return;
    }
    const QPointF moved = share(event->position()) - share(lastMouse_);
    lastMouse_ = event->position();
    if (!anchor_) {
        move(moved);
        return;
    }
    // As far from the corner that stays as the mouse is, along the frame's own diagonal.
    const QPointF at = share(event->position()) - *anchor_;
    const QRectF seen = cropOf(layout_);
    const double size = std::max({std::abs(at.x()) / seen.width(), std::abs(at.y()) / seen.height(), 0.02});
    const double zoom = std::clamp(placement_.zoom / size, 1.0, kMostZoom);
    const double real = placement_.zoom / zoom;
    const QPointF centre = *anchor_ + QPointF(std::copysign(seen.width() * real / 2.0, at.x()),
                                              std::copysign(seen.height() * real / 2.0, at.y()));
    place(centre, zoom);
}

void CropEditor::mouseReleaseEvent(QMouseEvent*)
{
    isDragged_ = false;
    anchor_.reset();
    setCursor(Qt::ArrowCursor);
}

void CropEditor::mouseDoubleClickEvent(QMouseEvent*)
{
    Q_EMIT doneAsked();
}

void CropEditor::wheelEvent(QWheelEvent* event)
{
    zoomBy(std::pow(kZoomStep, event->angleDelta().y() / kCropWheelNotch), share(event->position()));
    event->accept();
}

void CropEditor::keyPressEvent(QKeyEvent* event)
{
    const QSizeF seen = cropOf(layout_).size();
    const double step = event->modifiers() & Qt::ShiftModifier ? kFineStep : kCropKeyStep;
    const QPointF middle = cropOf(layout_).center();
    switch (event->key()) {
    case Qt::Key_Left:
        return move({-step * seen.width(), 0.0});
    case Qt::Key_Right:
        return move({step * seen.width(), 0.0});
    case Qt::Key_Up:
        return move({0.0, -step * seen.height()});
    case Qt::Key_Down:
        return move({0.0, step * seen.height()});
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return zoomBy(kZoomStep, middle);
    case Qt::Key_Minus:
        return zoomBy(1.0 / kZoomStep, middle);
    case Qt::Key_0:
        return showWhole();
    case Qt::Key_C:
        return centre();
    case Qt::Key_R:
        return turn();
    case Qt::Key_Escape:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT doneAsked();
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

void CropEditor::place(const QPointF& centre, double zoom)
{
    const PhotoPlacement wanted = croppedAround(layout_, placement_, centre, zoom);
    if (!(wanted == placement_))
        Q_EMIT placementChosen(wanted);
}

void CropEditor::move(const QPointF& by)
{
    place(cropOf(layout_).center() + by, placement_.zoom);
}

// What is under the mouse stays there.
void CropEditor::zoomBy(double factor, const QPointF& around)
{
    const double zoom = std::clamp(placement_.zoom * factor, 1.0, kMostZoom);
    place(around + (cropOf(layout_).center() - around) * (placement_.zoom / zoom), zoom);
}

void CropEditor::turn()
{
    Q_EMIT placementChosen(turnedOnce(placement_));
}

void CropEditor::centre()
{
    place({0.5, 0.5}, placement_.zoom);
}

void CropEditor::showWhole()
{
    place({0.5, 0.5}, 1.0);
}

} // namespace halvern
