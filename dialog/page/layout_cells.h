// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/layout.h"

#include <vector>

namespace halvern {

/// A page that photos are put on. Lengths are points.
struct CellRoom {
    QSizeF page;
    QRectF area; ///< that may be printed on
};

/// A layout's places on a page, or the sentence that says why it has none there.
struct LayoutCells {
    std::vector<QRectF> cells;
    QString problem;
};

/// The places of a layout in rows and columns, of one size or with fixed places. Any thread.
LayoutCells layoutCells(const Layout& layout, const CellRoom& room);

/// `size` in the middle of the page, or as near to it as the area lets it be.
QRectF centredOn(const CellRoom& room, const QSizeF& size);

/// A photo that is put on a sheet beside others: its size, and what became of it.
struct PackedPhoto {
    QSizeF size; ///< points
    bool isTurned = false;
    size_t sheet = 0;
    QPointF corner = {};
};

/// Puts photos side by side so that little of the page's length is used; where it may, it turns them. Empty
/// if one of them does not fit. Their order in the answer is that in which they were given. Any thread.
std::vector<PackedPhoto> packed(const std::vector<QSizeF>& sizes, const CellRoom& room, double gap,
                                bool mayTurn);

} // namespace halvern
