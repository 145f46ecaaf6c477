// SPDX-License-Identifier: MIT
#include "dialog/window/disabled_reasons.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QLabel>

namespace halvern {

namespace {

QString reasonOf(const QWidget* widget, const QPoint& at)
{
    const auto* view = qobject_cast<const QAbstractItemView*>(widget->parentWidget());
    if (view && view->viewport() == widget) {
        const QModelIndex item = view->indexAt(at);
        const bool isOff = item.isValid() && !(item.flags() & Qt::ItemIsEnabled);
        return isOff && item.data(Qt::ToolTipRole).toString().isEmpty()
                   ? item.data(Qt::AccessibleDescriptionRole).toString()
                   : QString();
    }
    // A caption is disabled with its control.
    const auto* caption = qobject_cast<const QLabel*>(widget);
    if (caption && !caption->isEnabled() && caption->buddy())
        widget = caption->buddy();
    return widget->isEnabled() || !widget->toolTip().isEmpty() ? QString() : widget->accessibleDescription();
}

} // namespace

DisabledReasons::DisabledReasons(QWidget* root) : QObject(root)
{
    // On the application: panels make their controls whenever they like, and open menus are windows.
    qApp->installEventFilter(this);
}

// Across windows, which QWidget::isAncestorOf() does not look beyond.
bool DisabledReasons::isBelowRoot(const QObject* object) const
{
    while (object && object != parent())
        object = object->parent();
    return object != nullptr;
}

bool DisabledReasons::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ToolTip || !watched->isWidgetType() || !isBelowRoot(watched))
        return false;
    const QString reason =
        reasonOf(static_cast<const QWidget*>(watched), static_cast<const QHelpEvent*>(event)->pos());
    if (!reason.isEmpty())
        Q_EMIT asked(reason);
    return false;
}

} // namespace halvern
