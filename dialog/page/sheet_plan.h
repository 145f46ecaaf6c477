// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/layout.h"
#include "dialog/page/page_choice.h"
#include "dialog/page/photo.h"
#include "platform/foundation/units.h"

#include <QLineF>

#include <vector>

namespace halvern {

/// A photo on a sheet, and where. Lengths are points of the page.
struct PlacedPhoto {
    size_t photo = 0; ///< its place among all that there are
    int number = 1;   ///< among those that are printed: what a caption counts
    PageLayout layout;
    QRectF cell;    ///< all of its place: with border and caption
    QRectF outline; ///< the printed part with its white border; a thin line goes along it
    QRectF caption; ///< where the text goes; empty: none
};

/// One sheet as it is printed.
struct Sheet {
    PageLayout page; ///< without a photo
    std::vector<PlacedPhoto> photos;
    std::vector<QLineF> cutMarks;
    bool hasLine = false;
    double usedLength = 0.0; ///< of the page, up to the lowest photo's end
};

/// All sheets of a job, or the sentence that says why there are none.
struct SheetPlan {
    std::vector<Sheet> sheets;
    QString problem;

    /// How many photos are on all of them.
    size_t photoCount() const;
};

/// How far cut marks reach beyond what is cut out, millimetres.
inline constexpr double kCutMarkReach = 4.5;

struct SheetRequest {
    QSizeF paper;     ///< the upright sheet, points
    QRectF imageable; ///< of it
    PageTurn turn = PageTurn::automatic;
    Scaling scaling = Scaling::fit;
    Layout layout = {};
    SheetSettings settings = {};
    int resolution = kUsualResolution; ///< dots per inch: places are whole dots

    bool operator==(const SheetRequest&) const = default;
};

/// So many photos go on the sheets of one job at most, each counted as often as it is printed.
inline constexpr size_t kMostPlaces = 50'000;

/// Puts the chosen photos on sheets, in their order, those that are included and as often as each says. What
/// a printer prints, a preview shows and a test expects is computed here and nowhere else. Any thread.
SheetPlan planSheets(const SheetRequest& request, const std::vector<Photo>& photos,
                     const std::vector<size_t>& chosen);

/// The same plan with those of its sheets that the choice has, in the choice's order. Its ranges are of
/// photos, and of no concern here. Any thread.
SheetPlan withChosenSheets(SheetPlan plan, const PageChoice& choice);

} // namespace halvern
