// SPDX-License-Identifier: MIT
#include "platform/toolkit/accessible_controls.h"

#include "platform/foundation/numbers.h"
#include "platform/toolkit/choice_group.h"
#include "platform/toolkit/decimal_slider.h"
#include "platform/toolkit/matrix.h"
#include "platform/toolkit/stepper.h"

#include <QAccessibleWidget>

namespace halvern {

namespace {

// The position of a handle is nobody's number; the field beside it shows the real value.
class AccessibleSlider : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit AccessibleSlider(DecimalSlider* slider)
        : QAccessibleWidget(slider, QAccessible::Slider), slider_(slider)
    {
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? shortestDouble(slider_->realValue())
                                          : QAccessibleWidget::text(kind);
    }

    QVariant currentValue() const override { return slider_->realValue(); }

    void setCurrentValue(const QVariant& value) override { slider_->moveByUser(value.toDouble()); }

    QVariant maximumValue() const override { return slider_->maximumValue(); }

    QVariant minimumValue() const override { return slider_->minimumValue(); }

    QVariant minimumStepSize() const override { return slider_->singleStepValue(); }

private:
    DecimalSlider* slider_;
};

class AccessibleStepper : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit AccessibleStepper(Stepper* stepper)
        : QAccessibleWidget(stepper, QAccessible::SpinBox), stepper_(stepper)
    {
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? shortestDouble(stepper_->realValue())
                                          : QAccessibleWidget::text(kind);
    }

    QVariant currentValue() const override { return stepper_->realValue(); }

    void setCurrentValue(const QVariant& value) override { stepper_->stepByUser(value.toDouble()); }

    QVariant maximumValue() const override { return stepper_->maximumValue(); }

    QVariant minimumValue() const override { return stepper_->minimumValue(); }

    QVariant minimumStepSize() const override { return stepper_->increment(); }

private:
    Stepper* stepper_;
};

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    if (auto* slider = qobject_cast<DecimalSlider*>(object))
        return new AccessibleSlider(slider);
    if (auto* stepper = qobject_cast<Stepper*>(object))
        return new AccessibleStepper(stepper);
    if (qobject_cast<Matrix*>(object) || qobject_cast<ChoiceGroup*>(object))
        return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Grouping);
    return nullptr;
}

} // namespace

void installAccessibleControls()
{
    QAccessible::installFactory(makeInterface);
}

} // namespace halvern
