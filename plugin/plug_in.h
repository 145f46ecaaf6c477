// SPDX-License-Identifier: MIT
#pragma once

#include "platform/plugin_api/principal_class.h"

namespace halvern {

/// The bundle's principal class: accepts its own bundle only, and hands out the roster of panels. Holds no
/// state. Main thread only.
class RZPDEPlugInHalvern : public PrincipalClass {
public:
    ~RZPDEPlugInHalvern() override;

    bool initWithBundle(const Bundle& bundle) override;

    /// The panels in roster order, up to the first that could not be created.
    std::optional<PanelList>
    PDEPanelsForType_withHostInfo(const QString& type, const std::shared_ptr<HostCallback>& host) override;
};

/// Makes one panel, null if it cannot be created.
using PanelFactory = std::shared_ptr<Panel> (*)(const std::shared_ptr<HostCallback>& host);

/// Creates a panel with each factory, also behind one that fails, and answers those before the first failure.
PanelList makePanels(const std::vector<PanelFactory>& roster, const std::shared_ptr<HostCallback>& host);

} // namespace halvern
