// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QList>

class QWidget;

namespace HALVERN_EXPORT halvern {

/// Main thread only.
///
/// The children that a layout put into the view, in layout order; the toolkit's own parts of a control (a
/// combo box's list, a matrix's cells, a tab widget's stack) are not among them: of a tab widget the pages
/// are.
QList<QWidget*> subviewsOf(const QWidget* view);

/// The first view with the tag, depth first, `view` itself included; null if there is none or `view` is null.
QWidget* viewWithTag(QWidget* view, int tag);

} // namespace halvern
