// SPDX-License-Identifier: MIT
#include "panels/features/availability.h"

#include "platform/toolkit/control.h"
#include "platform/toolkit/plain_text.h"

#include <QComboBox>

namespace halvern::availability {

namespace {

// The description that a layout gives a control is kept here while the control says why it is disabled.
constexpr char kOwnDescription[] = "ownAccessibleDescription";

} // namespace

void setControl(QWidget* control, bool available, const QString& why)
{
    if (!control)
        return;
    if (!control->property(kOwnDescription).isValid())
        control->setProperty(kOwnDescription, control->accessibleDescription());
    control::setEnabledWithCaptions(control, available);
    setPlainDescription(control, available ? control->property(kOwnDescription).toString() : why);
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
