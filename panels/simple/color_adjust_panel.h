// SPDX-License-Identifier: MIT
#pragma once

#include "panel_base/base_panel.h"

namespace halvern {

/// Switches the printer's colour adjustments on or off and sets red, green, blue, brightness, contrast,
/// saturation and gamma. What the user types goes to the printer as typed, once it is in range. Main thread
/// only, like its base; owned by whoever holds it, as every panel is.
class RZColorAdjustPDEHalvern : public KSTRVLBasePDEHalvern {
public:
    QStringList supportedPPDOptionKeys() override;
    std::optional<QString> nibName() override;
    std::optional<QString> panelName() override;
    std::optional<QString> panelKind() override;
    std::optional<QString> ppdOptionKeyForTag(int tag) override;
    QVariant newChoiceForSender(QWidget* sender) override;
    void enableCustom() override;
    QMap<QString, QString> summaryInfo() override;
};

} // namespace halvern
