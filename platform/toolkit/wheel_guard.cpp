// SPDX-License-Identifier: MIT
#include "platform/toolkit/wheel_guard.h"

#include "platform/toolkit/stepper.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QSlider>

namespace halvern {

namespace {

QWidget* asValueControl(QObject* watched)
{
    if (qobject_cast<QComboBox*>(watched) || qobject_cast<QSlider*>(watched) ||
        qobject_cast<QAbstractSpinBox*>(watched) || qobject_cast<Stepper*>(watched))
        return static_cast<QWidget*>(watched);
    return nullptr;
}

} // namespace

WheelGuard::WheelGuard(QWidget* root) : QObject(root), root_(root)
{
    // On the application, because panels make their controls whenever they like.
    qApp->installEventFilter(this);
}

bool WheelGuard::eventFilter(QObject* watched, QEvent* event)
{
    // A control may have been polished before it came here; the pointer enters it before the wheel turns.
    const bool comes = event->type() == QEvent::Polish || event->type() == QEvent::Enter;
    if (event->type() != QEvent::Wheel && !comes)
        return false;
    QWidget* const control = asValueControl(watched);
    if (!control || !root_->isAncestorOf(control))
        return false;
    if (comes) {
        if (control->focusPolicy() == Qt::WheelFocus)
            control->setFocusPolicy(Qt::StrongFocus);
        return false;
    }
    if (control->hasFocus())
        return false;
    event->ignore();
    return true;
}

} // namespace halvern
