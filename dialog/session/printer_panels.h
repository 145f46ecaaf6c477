// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/panel_host.h"
#include "dialog/session/panel_source.h"

#include <QObject>

namespace halvern {

/// The panels of the selected printer, from the meeting with their host to the leave. Holds its counts of
/// both. Main thread only.
class PrinterPanels : public QObject {
public:
    /// `source` outlives it.
    explicit PrinterPanels(PanelSource& source) : source_(source) {}

    /// A new printer is there; `host` is what its panels will ask.
    void meet(std::shared_ptr<PanelHost> host) { host_ = std::move(host); }

    /// Makes the panels of a bundle. The sentence that says why there are none; empty on success.
    QString load(const QString& bundle);

    /// Lets the panels restore their values. Those that have the option `viewFirst` make their view before;
    /// empty: none does.
    void restore(const QString& viewFirst);

    /// Hides the panels, detaches their host and forgets both.
    void leave();

    const PanelList& list() const { return panels_; }

    /// A text in the words of the panels' bundle, where it has some.
    QString localized(const QString& text) const;

    /// Runs `work` from the event loop, unless the printer has been left by then.
    void later(std::function<void()> work);

    /// Tells all panels, later, what was chosen.
    void tell(const QString& key, const QString& choice);

    /// Whether panels are being told right now.
    bool isTelling() const { return isTelling_; }

    /// Lets the panels store what they hold in the print settings.
    void save();

private:
    PanelSource& source_;
    std::shared_ptr<PanelHost> host_;
    PanelList panels_;
    QString bundleName_; // of the panels
    bool isTelling_ = false;
};

} // namespace halvern
