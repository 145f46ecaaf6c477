// SPDX-License-Identifier: MIT
#include "panels/backprint/backprint_panel.h"

#include "panels/backprint/backprint_tags.h"
#include "panels/backprint/line_watcher.h"
#include "platform/foundation/user_defaults.h"
#include "platform/maker/backprint_text.h"
#include "platform/toolkit/control.h"

#include <QComboBox>
#include <QGuiApplication>
#include <QInputMethod>
#include <QLineEdit>

namespace halvern {

namespace {

QString lastTokenKey()
{
    return QStringLiteral("com.halvern.print.pde.cvp.lastToken");
}

} // namespace

void RZBackprintPDEHalvern::populateMenuObjectsInView(QWidget* view)
{
    auto* menu = qobject_cast<QComboBox*>(view_controlForTag(view, backprint::kTokenMenu));
    if (!menu)
        return;
    menu->clear();
    for (const char* const row : backprint::kTokens) {
        const QString token = QString::fromLatin1(row);
        menu->addItem(localized(token), token);
    }
    const QVariant last = UserDefaults::standardUserDefaults().objectForKey(lastTokenKey());
    const int index = last.isValid() ? menu->findText(localized(last.toString()), Qt::MatchExactly) : -1;
    menu->setCurrentIndex(qMax(0, index));
}

void RZBackprintPDEHalvern::sendUICommand(QWidget* sender)
{
    QLineEdit* field = sender ? lineForInsertion(sender->window()) : nullptr;
    if (!field)
        return;
    const auto* menu =
        qobject_cast<QComboBox*>(view_controlForTag(sender->parentWidget(), backprint::kTokenMenu));
    const QVariant token = control::selectedRepresentedObject(menu);
    if (token.typeId() != QMetaType::QString)
        return;
    // What an input method has not said yet comes before the token.
    QGuiApplication::inputMethod()->commit();
    // Counts as typed: the field tells controlTextDidChange:.
    field->insert(token.toString());
    setGlobalDefaultsObject_forKey(token, lastTokenKey());
}

// The line that has the focus; if none has, the last one that had it gets it back. Null if that cannot be.
QLineEdit* RZBackprintPDEHalvern::lineForInsertion(QWidget* window)
{
    if (QLineEdit* field = lineField(window->focusWidget())) {
        if (LineWatcher* watcher = LineWatcher::of(field))
            watcher->dropAutomaticSelection();
        return field;
    }
    if (!lastResponder)
        return nullptr;
    lastResponder->setFocus(Qt::OtherFocusReason);
    if (window->focusWidget() != lastResponder)
        return nullptr;
    if (LineWatcher* watcher = LineWatcher::of(lastResponder))
        watcher->restoreUsersSelection();
    return lastResponder;
}

void RZBackprintPDEHalvern::setToolTip_fromSender(const QString&, QWidget* sender)
{
    if (sender)
        sender->setToolTip(QStringLiteral(""));
}

void RZBackprintPDEHalvern::setControlsEnabledByToggle(QWidget* toggle)
{
    if (!toggle)
        return;
    QWidget* const view = toggle->parentWidget();
    const bool on = enablerState(toggle);
    if (QWidget* line = view_controlForTag(view, backprint::lineOfToggle(control::tagOf(toggle))))
        line->setEnabled(on);
    QWidget* const menu = view_controlForTag(view, backprint::kTokenMenu);
    if (!menu)
        return;
    const auto enableTokens = [&](bool enabled) {
        control::setEnabledWithCaptions(menu, enabled);
        if (QWidget* insert = view_controlForTag(view, backprint::kInsertControl))
            insert->setEnabled(enabled);
    };
    if (on && !menu->isEnabled()) {
        enableTokens(true);
        return;
    }
    for (const int tag : {backprint::kToggleLine1, backprint::kToggleLine2}) {
        if (enablerState(view_controlForTag(view, tag)))
            return;
    }
    enableTokens(false);
}

void RZBackprintPDEHalvern::observeValueForKeyPath_ofObject_change_context(const QString&, QWidget*,
                                                                           QWidget* old,
                                                                           const QString& context)
{
    if (context != QLatin1StringView("com.halvern.pde.backprint.firstResponder"))
        return;
    if (QLineEdit* field = lineField(old))
        lastResponder = field;
}

// The widget as one of the panel's own lines: the dialog around it has text fields, too, that take no token.
QLineEdit* RZBackprintPDEHalvern::lineField(QWidget* widget) const
{
    QLineEdit* field = control::asTextField(widget);
    const int tag = control::tagOf(field);
    return _panelView && _panelView->isAncestorOf(widget) &&
                   (tag == backprint::kLine1 || tag == backprint::kLine2)
               ? field
               : nullptr;
}

} // namespace halvern
