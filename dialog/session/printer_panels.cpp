// SPDX-License-Identifier: MIT
#include "dialog/session/printer_panels.h"

#include "platform/foundation/threads/work_queue.h"

#include <QPointer>
#include <QScopedValueRollback>

namespace halvern {

QString PrinterPanels::load(const QString& bundle)
{
    QString problem;
    bundleName_ = bundle;
    panels_ = source_.panels(bundle, host_, &problem);
    return problem;
}

void PrinterPanels::restore(const QString& viewFirst)
{
    // A restoring panel may ask for changes, which walk this list.
    const PanelList restoring = panels_;
    for (const std::shared_ptr<Panel>& panel : restoring) {
        if (!viewFirst.isEmpty() && panel->supportedPPDOptionKeys().contains(viewFirst))
            panel->panelView();
        panel->restoreValuesAndReturnError(nullptr);
    }
}

void PrinterPanels::leave()
{
    // Nothing is asked of the printer any more, and what is asked is taken back, before it is out of reach.
    for (const std::shared_ptr<Panel>& panel : PanelList(panels_))
        panel->shouldHide();
    if (host_)
        host_->detach();
    panels_.clear();
    host_.reset();
}

QString PrinterPanels::localized(const QString& text) const
{
    return panels_.empty() ? text : source_.localized(bundleName_, text);
}

void PrinterPanels::later(std::function<void()> work)
{
    QPointer<PrinterPanels> self(this);
    mainQueue().async([self, host = host_, work = std::move(work)] {
        if (self && self->host_ == host)
            work();
    });
}

void PrinterPanels::tell(const QString& key, const QString& choice)
{
    // Later, because a panel that asked for the change stores its own choice only after our answer.
    later([this, key, choice] {
        const QScopedValueRollback<bool> telling(isTelling_, true);
        const PanelList told = panels_;
        for (const std::shared_ptr<Panel>& panel : told)
            panel->PPDOptionKeyValueDidChange_ppdChoice(key, choice);
    });
}

void PrinterPanels::save()
{
    const PanelList saving = panels_;
    for (const std::shared_ptr<Panel>& panel : saving)
        panel->saveValuesAndReturnError(nullptr);
}

} // namespace halvern
