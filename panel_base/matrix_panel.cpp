// SPDX-License-Identifier: MIT
#include "panel_base/matrix_panel.h"

#include "platform/toolkit/control.h"
#include "platform/toolkit/matrix.h"

namespace halvern {

QVariant KSTRVLMatrixPDEHalvern::newChoiceForSender(QWidget* sender)
{
    const auto* matrix = qobject_cast<Matrix*>(sender);
    const std::optional<int> selected = matrix ? matrix->selectedTag() : std::nullopt;
    return ppdChoiceForTag(selected.value_or(control::tagOf(sender)));
}

void KSTRVLMatrixPDEHalvern::updateControl_withValue(QWidget* control, const QVariant& value)
{
    auto* matrix = qobject_cast<Matrix*>(control);
    if (!matrix || !value.isValid())
        return;
    matrix->selectCellWithTag(tagForStringValue(value));
    matrix->setToolTip(QString());
}

void KSTRVLMatrixPDEHalvern::setToolTip_fromSender(const QString&, QWidget* sender)
{
    if (sender)
        sender->setToolTip(QString());
}

} // namespace halvern
