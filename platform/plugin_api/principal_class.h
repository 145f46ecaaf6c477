// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"
#include "platform/plugin_api/panel.h"

#include <QtPlugin>

#include <memory>
#include <optional>

namespace HALVERN_EXPORT halvern {

class Bundle;
class HostCallback;

/// The principal object of a plug-in bundle. Main thread only.
class PrincipalClass {
public:
    virtual ~PrincipalClass() = default;

    /// initWithBundle: false refuses the bundle; the dialog then drops the plug-in.
    virtual bool initWithBundle(const Bundle& bundle) = 0;

    /// PDEPanelsForType:withHostInfo: a fresh list of panels for a known type, no list for another one. The
    /// caller owns the panels.
    virtual std::optional<PanelList>
    PDEPanelsForType_withHostInfo(const QString& type, const std::shared_ptr<HostCallback>& host) = 0;
};

/// The root object of the loadable module: makes the principal object.
class PlugInModule {
public:
    virtual ~PlugInModule() = default;
    virtual std::unique_ptr<PrincipalClass> makePrincipalObject() = 0;
};

/// The type string under which the print dialog asks for its panels.
inline constexpr char kPrintDialogExtensionType[] = "BDB091F4-E57F-11D3-B5CC-0050E4603277";

} // namespace halvern

#define HalvernPlugInModule_iid "com.halvern.print.PlugInModule/1.0"
Q_DECLARE_INTERFACE(halvern::PlugInModule, HalvernPlugInModule_iid)
