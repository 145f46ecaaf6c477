// SPDX-License-Identifier: MIT
#include "platform/toolkit/stepper.h"

#include <QKeyEvent>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace halvern {

namespace {

QToolButton* makeArrow(Stepper* stepper, Qt::ArrowType arrow)
{
    auto* button = new QToolButton(stepper);
    button->setArrowType(arrow);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    button->setMinimumHeight(8);
    button->setIconSize(QSize(8, 8));
    return button;
}

} // namespace

Stepper::Stepper(QWidget* parent)
    : QWidget(parent), up_(makeArrow(this, Qt::UpArrow)), down_(makeArrow(this, Qt::DownArrow))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    up_->setAccessibleName(tr("Increase"));
    down_->setAccessibleName(tr("Decrease"));
    column->addWidget(up_);
    column->addWidget(down_);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFocusPolicy(Qt::TabFocus);
    connect(up_, &QToolButton::clicked, this, [this] { step(+1); });
    connect(down_, &QToolButton::clicked, this, [this] { step(-1); });
    updateArrows();
}

// As high as a field of text, beside which it stands, not as two whole buttons.
QSize Stepper::sizeHint() const
{
    constexpr int kWidth = 18;
    constexpr int kTextMargins = 4;
    QStyleOptionFrame field;
    field.initFrom(this);
    field.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &field, this);
    const QSize text(kWidth, fontMetrics().height() + kTextMargins);
    return {kWidth, style()->sizeFromContents(QStyle::CT_LineEdit, &field, text, this).height()};
}

void Stepper::setMinimumValue(double minimum)
{
    minimumValue_ = minimum;
    setRealValue(realValue_);
}

void Stepper::setMaximumValue(double maximum)
{
    maximumValue_ = maximum;
    setRealValue(realValue_);
}

void Stepper::setIncrement(double increment)
{
    if (increment > 0.0)
        increment_ = increment;
}

void Stepper::setRealValue(double value)
{
    if (std::isnan(value))
        return;
    realValue_ = std::clamp(value, minimumValue_, std::max(minimumValue_, maximumValue_));
    updateArrows();
}

void Stepper::step(int direction)
{
    stepByUser(std::round((realValue_ + direction * increment_) * 1e6) / 1e6);
}

void Stepper::stepByUser(double value)
{
    const double before = realValue_;
    setRealValue(value);
    if (realValue_ != before)
        Q_EMIT userStepped();
}

void Stepper::updateArrows()
{
    up_->setEnabled(realValue_ < maximumValue_);
    down_->setEnabled(realValue_ > minimumValue_);
}

void Stepper::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Up)
        step(+1);
    else if (event->key() == Qt::Key_Down)
        step(-1);
    else
        QWidget::keyPressEvent(event);
}

void Stepper::wheelEvent(QWheelEvent* event)
{
    if (event->angleDelta().y() != 0)
        step(event->angleDelta().y() > 0 ? +1 : -1);
    event->accept();
}

} // namespace halvern
