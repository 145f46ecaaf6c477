// SPDX-License-Identifier: MIT
#include "platform/toolkit/decimal_slider.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>

#include <algorithm>
#include <cmath>
#include <limits>

namespace halvern {

namespace {

// More positions than any screen has pixels only cost precision in the style's arithmetic.
constexpr int kMostPositions = 100000;

} // namespace

DecimalSlider::DecimalSlider(QWidget* parent)
    : QSlider(Qt::Horizontal, parent), neutralValue_(std::numeric_limits<double>::quiet_NaN())
{
    setRange(0, 100);
    setPageStep(10);
    connect(this, &QAbstractSlider::actionTriggered, this, &DecimalSlider::takeUserPosition);
}

void DecimalSlider::setMinimumValue(double minimum)
{
    minimumValue_ = minimum;
    updatePositions();
}

void DecimalSlider::setMaximumValue(double maximum)
{
    maximumValue_ = maximum;
    updatePositions();
}

void DecimalSlider::setSingleStepValue(double step)
{
    if (!(step > 0.0))
        return;
    singleStepValue_ = step;
    updatePositions();
}

void DecimalSlider::setRealValue(double value)
{
    if (std::isnan(value))
        return;
    realValue_ = std::clamp(value, minimumValue_, std::max(minimumValue_, maximumValue_));
    QSlider::setValue(positionOf(realValue_));
}

void DecimalSlider::moveByUser(double value)
{
    const double before = realValue_;
    setRealValue(value);
    if (realValue_ != before)
        Q_EMIT userMoved();
}

void DecimalSlider::setNeutralValue(double value)
{
    neutralValue_ = value;
    update();
}

// An action carries the new position before it becomes the value.
void DecimalSlider::takeUserPosition()
{
    const int position = sliderPosition();
    if (position == QSlider::value())
        return;
    // The last position may fall short of the maximum when the range is no multiple of the step.
    realValue_ = position == maximum() ? maximumValue_ : minimumValue_ + position * singleStepValue_;
    // Hundredths added up leave traces such as 0.30000000000000004; what the user reads is what is meant.
    realValue_ = std::round(realValue_ * 1e6) / 1e6;
    QSlider::setValue(position);
    Q_EMIT userMoved();
}

void DecimalSlider::updatePositions()
{
    const double span = std::max(0.0, maximumValue_ - minimumValue_);
    const double positions = std::min<double>(std::ceil(span / singleStepValue_ - 1e-9), kMostPositions);
    const double value = realValue_;
    setRange(0, int(positions));
    setPageStep(std::max(1, int(positions) / 10));
    setRealValue(value);
}

int DecimalSlider::positionOf(double value) const
{
    return value >= maximumValue_ ? maximum() : int(std::lround((value - minimumValue_) / singleStepValue_));
}

void DecimalSlider::paintEvent(QPaintEvent* event)
{
    if (!std::isnan(neutralValue_) && neutralValue_ >= minimumValue_ && neutralValue_ <= maximumValue_) {
        QStyleOptionSlider option;
        initStyleOption(&option);
        const int handle = style()->pixelMetric(QStyle::PM_SliderLength, &option, this);
        const int at = QStyle::sliderPositionFromValue(minimum(), maximum(), positionOf(neutralValue_),
                                                       width() - handle, option.upsideDown) +
                       handle / 2;
        QPainter painter(this);
        QColor mark =
            palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText);
        if (isEnabled())
            mark.setAlphaF(0.55F);
        painter.fillRect(QRect(at, 0, std::max(1, height() / 24), height()), mark);
    }
    QSlider::paintEvent(event);
}

} // namespace halvern
