#include "panels/features/availability.h"

#include "platform/toolkit/control.h"

#include <QComboBox>
#include <QLabel>

namespace halvern::availability {

namespace {

// The description that a layout gives a control is kept here while the control says why it is disabled.
constexpr char kOwnDescription[] = "ownAccessibleDescription";

void dimCaption(QWidget* control, bool available)
{
    if (!control->parentWidget())
        return;
    const auto labels = control->parentWidget()->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
    for (QLabel* label : labels) {
        if (label->buddy() == control)
            label->setEnabled(available);
    }
}

} // namespace

void setControl(QWidget* control, bool available, const QString& why)
{
    if (!control)
        return;
    if (!control->property(kOwnDescription).isValid())
        control->setProperty(kOwnDescription, control->accessibleDescription());
    control->setEnabled(available);
    control->setAccessibleDescription(available ? control->property(kOwnDescription).toString() : why);
    dimCaption(control, available);
}

void setItem(QComboBox* popup, int index, bool available, const QString& why)
{
    if (!popup || index < 0 || index >= popup->count())
        return;
    control::setItemEnabled(popup, index, available);
    popup->setItemData(index, available ? QVariant() : QVariant(why), Qt::AccessibleDescriptionRole);
}

bool isEnabled(const QWidget* control)
{
    return control && control->isEnabledTo(control->parentWidget());
}

} // namespace halvern::availability
