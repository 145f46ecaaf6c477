// SPDX-License-Identifier: MIT
#pragma once

#include "panel_base/base_panel.h"

namespace halvern {

/// A base for panels whose options are all radio-button matrices. No panel of ours derives from it; it is
/// there for those that will. Main thread only.
class KSTRVLMatrixPDEHalvern : public KSTRVLBasePDEHalvern {
public:
    QVariant newChoiceForSender(QWidget* sender) override;
    void updateControl_withValue(QWidget* control, const QVariant& value) override;

    /// setToolTip:fromSender: clears the tool tip whatever text is given.
    void setToolTip_fromSender(const QString& toolTip, QWidget* sender) override;
};

} // namespace halvern
