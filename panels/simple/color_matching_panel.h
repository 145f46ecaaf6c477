// SPDX-License-Identifier: MIT
#pragma once

#include "panel_base/base_panel.h"

namespace halvern {

/// Chooses who matches the picture's colours to the printer. Complete, but not in the roster. Main thread
/// only, like its base; owned by whoever holds it, as every panel is.
class RZColorMatchingPDEHalvern : public KSTRVLBasePDEHalvern {
public:
    QStringList supportedPPDOptionKeys() override;
    std::optional<QString> nibName() override;
    std::optional<QString> panelName() override;
    std::optional<QString> panelKind() override;
    std::optional<QString> ppdOptionKeyForTag(int tag) override;
};

} // namespace halvern
