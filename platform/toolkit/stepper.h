// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QWidget>

class QToolButton;

namespace HALVERN_EXPORT halvern {

/// Two arrow buttons, one above the other, with a real value between a minimum and a maximum. Main thread
/// only.
class Stepper : public QWidget {
    Q_OBJECT
    Q_PROPERTY(double minimumValue READ minimumValue WRITE setMinimumValue)
    Q_PROPERTY(double maximumValue READ maximumValue WRITE setMaximumValue)
    Q_PROPERTY(double increment READ increment WRITE setIncrement)
    Q_PROPERTY(double realValue READ realValue WRITE setRealValue)

public:
    explicit Stepper(QWidget* parent = nullptr);

    double minimumValue() const { return minimumValue_; }

    double maximumValue() const { return maximumValue_; }

    double increment() const { return increment_; }

    double realValue() const { return realValue_; }

    void setMinimumValue(double minimum);
    void setMaximumValue(double maximum);
    void setIncrement(double increment);

    /// Sets the value, held to the range. Does not count as a user's action. Not-a-number is ignored.
    void setRealValue(double value);

    /// Sets the value for a user who has another way than the mouse or the keyboard.
    void stepByUser(double value);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user pressed an arrow, or stepped with the wheel or the arrow keys, and the value changed.
    void userStepped();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void step(int direction);
    void updateArrows();

    double minimumValue_ = 0.0;
    double maximumValue_ = 100.0;
    double increment_ = 1.0;
    double realValue_ = 0.0;
    QToolButton* up_;
    QToolButton* down_;
};

} // namespace halvern
