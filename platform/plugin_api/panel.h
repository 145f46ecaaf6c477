// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <optional>
#include <vector>

class QWidget;

namespace HALVERN_EXPORT halvern {

/// What a panel reports when saving or restoring fails. The panels that we ship never fill it.
struct PanelError {
    QString message;
};

/// A page of options in the print dialog, as the dialog sees it. Main thread only. The last reference may
/// drop on a background queue: the panel hands its widgets back to the main thread by itself. Nothing is
/// thrown across an operation.
class Panel {
public:
    virtual ~Panel() = default;

    /// panelView: loads the view when first asked; null if it cannot be loaded (asked again, it tries again).
    /// The panel owns the widget; the dialog may lend it a parent, and must take that parent back
    /// (setParent(nullptr)) before the parent is deleted.
    virtual QWidget* panelView() = 0;

    /// panelName: the title for the dialog's panel list, in the user's language.
    virtual std::optional<QString> panelName() = 0;

    /// panelKind: a reverse-domain identifier, the same in every language.
    virtual std::optional<QString> panelKind() = 0;

    /// summaryInfo: option title -> choice title, both in the user's language.
    virtual QMap<QString, QString> summaryInfo() = 0;

    /// willShow: the dialog is about to show the view.
    virtual void willShow() = 0;

    /// shouldHide: the dialog is about to hide the view; true lets it.
    virtual bool shouldHide() = 0;

    /// printWindowWillClose: called once before the dialog closes; `printing` is true when it closes to
    /// print.
    virtual void printWindowWillClose(bool printing) = 0;

    /// saveValuesAndReturnError: called before the job is made. `error` may be null.
    virtual bool saveValuesAndReturnError(PanelError* error) = 0;

    /// restoreValuesAndReturnError: called when the dialog wants the panel to take the current values.
    virtual bool restoreValuesAndReturnError(PanelError* error) = 0;

    /// PPDOptionKeyValueDidChange:ppdChoice: an option changed outside this panel.
    virtual void PPDOptionKeyValueDidChange_ppdChoice(const std::optional<QString>& key,
                                                      const QVariant& choice) = 0;

    /// shouldShowHelp: true when the dialog shall show help itself; false when the panel has opened its help
    /// book.
    virtual bool shouldShowHelp() = 0;

    /// supportedPPDOptionKeys: the PPD keywords that the panel owns, in its order.
    virtual QStringList supportedPPDOptionKeys() = 0;
};

using PanelList = std::vector<std::shared_ptr<Panel>>;

} // namespace halvern
