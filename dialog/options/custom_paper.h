// SPDX-License-Identifier: MIT
#pragma once

#include <QMarginsF>
#include <QSizeF>
#include <QString>

#include <optional>

struct ppd_file_s;
using ppd_file_t = ppd_file_s;

namespace halvern {

/// Between what measures a printer takes sizes of the user's own. In points.
struct PaperLimits {
    QSizeF least;
    QSizeF most;
    QMarginsF margins;

    bool holds(const QSizeF& points) const;
};

/// Nothing if it takes none. On the thread that owns the file.
std::optional<PaperLimits> paperLimits(ppd_file_t* file);

/// The value of PageSize for measures of the user's own, "Custom.101.6x250mm", and back.
QString customKeyword(const QSizeF& points);
std::optional<QSizeF> customMeasures(const QString& keyword);

/// Measures in the user's unit of length, "102 × 152 mm" or "4 × 6 in". Millimetres with this many decimals
/// at most, inches with two.
QString measuresText(const QSizeF& points, bool isMetric, int decimals = 0);

/// A size of the user's own in words, "101.6 × 250 mm"; the keyword itself if it is none.
QString customText(const QString& keyword);

/// The height of a sheet of this width whose printed area has the photo's proportions, in points.
double heightForPhoto(double width, const QSizeF& photo, const QMarginsF& margins);

} // namespace halvern
