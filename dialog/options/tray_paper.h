// SPDX-License-Identifier: MIT
#pragma once

#include <QSizeF>
#include <QString>

namespace halvern {

/// A paper that a printer says is in one of its trays, in its own words. A value.
struct TrayPaper {
    QString source; ///< where it lies, a keyword ("tray-1"); empty: not told
    QString type;   ///< what it is, a keyword ("photographic-glossy"); empty: not told
    QSizeF points;  ///< of a roll, its width and the longest page; a length of 0 is not known
    bool isRoll = false;
    bool isBorderless = false; ///< prints to its edges

    bool operator==(const TrayPaper&) const = default;
};

} // namespace halvern
