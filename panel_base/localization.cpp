// SPDX-License-Identifier: MIT
#include "panel_base/base_panel.h"

#include "platform/toolkit/control.h"
#include "platform/toolkit/matrix.h"
#include "platform/toolkit/plain_text.h"
#include "platform/toolkit/view_search.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabWidget>

namespace halvern {

namespace {

QList<QWidget*> childrenToLocalize(QWidget* view)
{
    if (const auto* matrix = qobject_cast<const Matrix*>(view))
        return QList<QWidget*>(matrix->cells().begin(), matrix->cells().end());
    return subviewsOf(view);
}

bool answersSizeToFit(const QWidget* view)
{
    return qobject_cast<const QLabel*>(view) || qobject_cast<const QAbstractButton*>(view) ||
           qobject_cast<const QComboBox*>(view);
}

} // namespace

bool KSTRVLBasePDEHalvern::replaceByLocalized(const QString& text,
                                              const std::function<void(const QString&)>& set) const
{
    const QString translated = localized(text);
    if (text.isEmpty() || translated == text)
        return false;
    set(translated);
    return true;
}

bool KSTRVLBasePDEHalvern::localizeOwnText(QWidget* view) const
{
    // A pop-up button's title is its selected item's; its items are what has texts.
    if (auto* popup = qobject_cast<QComboBox*>(view)) {
        bool changed = false;
        for (int i = 0; i < popup->count(); ++i) {
            // Items with a represented object were titled when the menu was filled.
            if (!popup->itemData(i).isValid())
                changed |= replaceByLocalized(popup->itemText(i),
                                              [=](const QString& text) { popup->setItemText(i, text); });
        }
        return changed;
    }
    if (const auto title = control::title(view))
        return replaceByLocalized(*title, [view](const QString& text) { control::setTitle(view, text); });
    if (qobject_cast<QLabel*>(view) || qobject_cast<QLineEdit*>(view)) {
        const QString shown = control::stringValue(view).value_or(QString());
        return replaceByLocalized(shown,
                                  [view](const QString& text) { control::setStringValue(view, text); });
    }
    return false;
}

bool KSTRVLBasePDEHalvern::localizeStringsInView_andSubviews_resizeTofit(QWidget* view, bool recurse,
                                                                         bool resize)
{
    if (!view)
        return false;
    bool changed = false;
    if (recurse) {
        // What the last child answers, not whether any child changed.
        const QList<QWidget*> children = childrenToLocalize(view);
        for (QWidget* child : children)
            changed = localizeStringsInView_andSubviews_resizeTofit(child, true, resize);
    }
    if (auto* tabs = qobject_cast<QTabWidget*>(view)) {
        for (int i = 0; i < tabs->count(); ++i)
            tabs->setTabText(i, localized(tabs->tabText(i)));
    }
    changed |= localizeOwnText(view);
    replaceByLocalized(view->toolTip(), [view](const QString& text) { setPlainToolTip(view, text); });
    // What a screen reader says is as much a text of the view as what it shows.
    replaceByLocalized(view->accessibleName(), [view](const QString& text) { setPlainName(view, text); });
    replaceByLocalized(view->accessibleDescription(),
                       [view](const QString& text) { setPlainDescription(view, text); });
    if (resize && changed && answersSizeToFit(view))
        view->adjustSize();
    return changed;
}

} // namespace halvern
