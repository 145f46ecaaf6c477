// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

namespace HALVERN_EXPORT halvern {

/// A rectangle in points (1/72 inch), y growing downwards, as the printing platform gives it.
struct PageRect {
    double top = 0.0;
    double left = 0.0;
    double bottom = 0.0;
    double right = 0.0;
};

/// The orientation values of the printing platform.
enum class PageOrientation { portrait = 1, landscape = 2, reversePortrait = 3, reverseLandscape = 4 };

/// The page of a job: paper, margins, orientation. Main thread only. The operations answer a status, 0 on
/// success; on failure the result is left as it was. Virtual, so that tests can let a call fail.
class PageFormat {
public:
    PageFormat() = default;

    /// `paper` is the whole sheet, `imageable` the part that can be printed, both upright and in points with
    /// the sheet's top left corner as origin.
    PageFormat(const PageRect& paper, const PageRect& imageable, PageOrientation orientation);
    virtual ~PageFormat() = default;

    /// PMGetOrientation
    virtual int getOrientation(PageOrientation& orientation) const;

    /// PMGetUnadjustedPaperRect: the upright sheet, origin at the imageable area's top left corner, so that
    /// top and left are zero or negative.
    virtual int getUnadjustedPaperRect(PageRect& rect) const;

    /// PMGetAdjustedPaperRect: the same sheet turned as the page is.
    virtual int getAdjustedPaperRect(PageRect& rect) const;

private:
    PageRect paper_;
    PageRect imageable_;
    PageOrientation orientation_ = PageOrientation::portrait;
};

} // namespace halvern
