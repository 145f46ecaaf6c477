// SPDX-License-Identifier: MIT
#pragma once

#include "panel_base/base_panel.h"

namespace halvern {

/// Switches the printer's sharpening on or off and sets its radius (a whole number) and its intensity (a
/// decimal number with two digits behind the point). Main thread only,
/// like its base; owned by whoever holds it, as every panel is.
class RZSharpnessPDEHalvern : public KSTRVLBasePDEHalvern {
public:
    QStringList supportedPPDOptionKeys() override;
    std::optional<QString> nibName() override;
    std::optional<QString> panelName() override;
    std::optional<QString> panelKind() override;
    std::optional<QString> ppdOptionKeyForTag(int tag) override;
    QVariant ppdChoiceForTag(int tag) override;
    int tagForStringValue(const QVariant& value) override;
    QVariant newChoiceForSender(QWidget* sender) override;
    void enableCustom() override;
    void controlTextDidEndEditing(QLineEdit* field) override;
};

} // namespace halvern
