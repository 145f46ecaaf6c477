// SPDX-License-Identifier: MIT
#include "plugin/plug_in.h"

#include "panels/backprint/backprint_panel.h"
#include "panels/features/features_panel.h"
#include "panels/simple/color_adjust_panel.h"
#include "panels/simple/sharpness_panel.h"
#include "platform/foundation/bundle.h"
#include "platform/foundation/log.h"

#include <algorithm>

namespace halvern {

namespace {

constexpr char kBundleIdentifier[] = "com.halvern.tessarin.pde";

template <class P> std::shared_ptr<Panel> make(const std::shared_ptr<HostCallback>& host)
{
    return makePanel<P>(host);
}

const std::vector<PanelFactory>& roster()
{
    static const std::vector<PanelFactory> factories{
        &make<RZFeaturesPDEHalvern>,
        &make<RZBackprintPDEHalvern>,
        &make<RZColorAdjustPDEHalvern>,
        &make<RZSharpnessPDEHalvern>,
    };
    return factories;
}

} // namespace

RZPDEPlugInHalvern::~RZPDEPlugInHalvern()
{
    logLine(QStringLiteral("entered dealloc in RZPDEPlugInHalvern"));
}

bool RZPDEPlugInHalvern::initWithBundle(const Bundle& bundle)
{
    const std::optional<QString> identifier = bundle.bundleIdentifier();
    if (identifier == QLatin1StringView(kBundleIdentifier))
        return true;
    logLine(QStringLiteral("ERROR: bad bundle id \"%1\" not equal to \"%2\"")
                .arg(identifier.value_or(QStringLiteral("(null)")), QLatin1StringView(kBundleIdentifier)));
    return false;
}

std::optional<PanelList>
RZPDEPlugInHalvern::PDEPanelsForType_withHostInfo(const QString& type,
                                                  const std::shared_ptr<HostCallback>& host)
{
    if (type != QLatin1StringView(kPrintDialogExtensionType))
        return std::nullopt;
    return makePanels(roster(), host);
}

PanelList makePanels(const std::vector<PanelFactory>& roster, const std::shared_ptr<HostCallback>& host)
{
    PanelList panels;
    for (const PanelFactory factory : roster)
        panels.push_back(factory(host));
    panels.erase(std::find(panels.begin(), panels.end(), nullptr), panels.end());
    return panels;
}

} // namespace halvern
