// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QSlider>

namespace HALVERN_EXPORT halvern {

/// A slider with a real minimum, maximum and value. The handle moves in steps of `singleStepValue`; a value
/// set by the program is kept exactly. Main thread only.
class DecimalSlider : public QSlider {
    Q_OBJECT
    Q_PROPERTY(double minimumValue READ minimumValue WRITE setMinimumValue)
    Q_PROPERTY(double maximumValue READ maximumValue WRITE setMaximumValue)
    Q_PROPERTY(double singleStepValue READ singleStepValue WRITE setSingleStepValue)
    Q_PROPERTY(double realValue READ realValue WRITE setRealValue)
    Q_PROPERTY(double neutralValue READ neutralValue WRITE setNeutralValue)

public:
    explicit DecimalSlider(QWidget* parent = nullptr);

    double minimumValue() const { return minimumValue_; }

    double maximumValue() const { return maximumValue_; }

    double singleStepValue() const { return singleStepValue_; }

    double realValue() const { return realValue_; }

    /// The value that changes nothing, marked under the groove; not-a-number for no mark.
    double neutralValue() const { return neutralValue_; }

    /// The value is held to the new range without notice to anybody.
    void setMinimumValue(double minimum);
    void setMaximumValue(double maximum);

    /// The distance of two handle positions; 0 or less is ignored.
    void setSingleStepValue(double step);

    /// Sets the value, held to the range. Does not count as a user's action. Not-a-number is ignored.
    void setRealValue(double value);
    void setNeutralValue(double value);

    /// Sets the value for a user who has another way than the mouse or the keyboard.
    void moveByUser(double value);

Q_SIGNALS:
    /// The user moved the slider with the mouse, the wheel or the keyboard.
    void userMoved();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void takeUserPosition();
    void updatePositions();
    int positionOf(double value) const;

    double minimumValue_ = 0.0;
    double maximumValue_ = 100.0;
    double singleStepValue_ = 1.0;
    double realValue_ = 0.0;
    double neutralValue_;
};

} // namespace halvern
