// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QObject>

namespace HALVERN_EXPORT halvern {

/// Keeps the wheel for scrolling: below `root` it changes the value of a pop-up, a slider, a stepper or a
/// field of numbers only while that has the keyboard's focus, and does not move the focus there. Whoever else
/// is under the pointer gets the wheel then, as a rule the page. Main thread only; lives as long as `root`,
/// its parent.
class WheelGuard : public QObject {
    Q_OBJECT

public:
    explicit WheelGuard(QWidget* root);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* root_;
};

} // namespace halvern
