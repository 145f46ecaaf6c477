// SPDX-License-Identifier: MIT
#include "platform/toolkit/view_search.h"

#include "platform/toolkit/control.h"
#include "platform/toolkit/matrix.h"
#include "platform/toolkit/stepper.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QProgressBar>
#include <QScrollArea>
#include <QTabWidget>

namespace halvern {

namespace {

bool hasOnlyInnerParts(const QWidget* view)
{
    return qobject_cast<const QComboBox*>(view) || qobject_cast<const QLineEdit*>(view) ||
           qobject_cast<const QAbstractSpinBox*>(view) || qobject_cast<const QAbstractButton*>(view) ||
           qobject_cast<const Matrix*>(view) || qobject_cast<const Stepper*>(view) ||
           qobject_cast<const QProgressBar*>(view);
}

} // namespace

QList<QWidget*> subviewsOf(const QWidget* view)
{
    QList<QWidget*> result;
    if (!view || hasOnlyInnerParts(view))
        return result;
    if (const auto* tabs = qobject_cast<const QTabWidget*>(view)) {
        for (int i = 0; i < tabs->count(); ++i)
            result.append(tabs->widget(i));
        return result;
    }
    if (const auto* area = qobject_cast<const QScrollArea*>(view)) {
        if (area->widget())
            result.append(area->widget());
        return result;
    }
    const QObjectList& children = view->children();
    for (QObject* child : children) {
        auto* widget = qobject_cast<QWidget*>(child);
        if (widget && !widget->isWindow())
            result.append(widget);
    }
    return result;
}

QWidget* viewWithTag(QWidget* view, int tag)
{
    if (!view)
        return nullptr;
    if (control::tagOf(view) == tag)
        return view;
    const QList<QWidget*> children = subviewsOf(view);
    for (QWidget* child : children) {
        if (QWidget* found = viewWithTag(child, tag))
            return found;
    }
    return nullptr;
}

} // namespace halvern
