// SPDX-License-Identifier: MIT
#pragma once

#include "panel_base/base_panel.h"

namespace halvern {

/// Takes the place of the dialog's own cover page panel and sees to it that the job asks for no cover page.
/// Complete, but not in the roster. Main thread only,
/// like its base; owned by whoever holds it, as every panel is.
class RZUnavailablePDEHalvern : public KSTRVLBasePDEHalvern {
public:
    bool initWithCallback(const std::shared_ptr<HostCallback>& callback) override;
    QStringList supportedPPDOptionKeys() override;
    std::optional<QString> nibName() override;
    std::optional<QString> panelName() override;
    std::optional<QString> panelKind() override;

    /// saveValuesAndReturnError: asks for no cover page if the settings ask for one; writes nothing else. The
    /// panel does not count as leaving.
    bool saveValuesAndReturnError(PanelError* error) override;
    bool restoreValuesAndReturnError(PanelError* error) override;
};

} // namespace halvern
