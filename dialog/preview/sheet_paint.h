// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/page_layout.h"

class QPainter;
class QPalette;
class QColor;

namespace halvern {

/// What the preview draws of a sheet, with a page on it or without. Main thread only.

/// A photo's colours are judged on a neutral gray, light or dark with the rest of the dialog.
QColor neutralGround(const QPalette& palette);

/// For words on it.
QColor inkOn(const QColor& background);

/// `sheet` is where it lies on the screen.
void paintShadow(QPainter& painter, const QRectF& sheet);

/// The line up to which the printer prints, in points of the page; none if it prints to the edges.
void paintMargins(QPainter& painter, const PageLayout& layout);

/// What runs over the paper's edges and is cut away: so many points along each of them.
void paintOverspill(QPainter& painter, const PageLayout& layout, double overspill);

} // namespace halvern
