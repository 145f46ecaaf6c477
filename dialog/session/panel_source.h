// SPDX-License-Identifier: MIT
#pragma once

#include "platform/plugin_api/panel.h"

namespace halvern {

class HostCallback;

/// Where the dialog gets a printer's panels from. Main thread only.
class PanelSource {
public:
    virtual ~PanelSource() = default;

    /// The panels of the bundle that a PPD names. Empty, with a sentence in `problem`, if it cannot be had.
    /// The source outlives the panels.
    virtual PanelList panels(const QString& bundleName, const std::shared_ptr<HostCallback>& host,
                             QString* problem) = 0;

    /// What the bundle calls something in the user's language: a PPD keyword, for example. The text itself if
    /// the bundle has no words for it.
    virtual QString localized(const QString& /*bundleName*/, const QString& text) const { return text; }
};

} // namespace halvern
