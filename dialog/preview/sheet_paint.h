// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/page_layout.h"

class QPainter;

namespace halvern {

/// What the preview draws of a sheet, with a page on it or without. Main thread only.

/// `sheet` is where it lies on the screen.
void paintShadow(QPainter& painter, const QRectF& sheet);

/// The line up to which the printer prints, in points of the page; none if it prints to the edges.
void paintMargins(QPainter& painter, const PageLayout& layout);

} // namespace halvern
