// SPDX-License-Identifier: MIT
#include "platform/printing/page_format.h"

namespace halvern {

PageFormat::PageFormat(const PageRect& paper, const PageRect& imageable, PageOrientation orientation)
    : paper_(paper), imageable_(imageable), orientation_(orientation)
{
}

int PageFormat::getOrientation(PageOrientation& orientation) const
{
    orientation = orientation_;
    return 0;
}

int PageFormat::getUnadjustedPaperRect(PageRect& rect) const
{
    rect = {paper_.top - imageable_.top, paper_.left - imageable_.left, paper_.bottom - imageable_.top,
            paper_.right - imageable_.left};
    return 0;
}

int PageFormat::getAdjustedPaperRect(PageRect& rect) const
{
    PageRect upright;
    getUnadjustedPaperRect(upright);
    switch (orientation_) {
    case PageOrientation::portrait:
        rect = upright;
        break;
    case PageOrientation::reversePortrait:
        rect = {imageable_.bottom - paper_.bottom, imageable_.right - paper_.right,
                imageable_.bottom - paper_.top, imageable_.right - paper_.left};
        break;
    case PageOrientation::landscape:
        // A quarter turn: the sheet's left edge becomes the page's top, its bottom edge the page's left.
        rect = {upright.left, imageable_.bottom - paper_.bottom, upright.right,
                imageable_.bottom - paper_.top};
        break;
    case PageOrientation::reverseLandscape:
        rect = {imageable_.right - paper_.right, upright.top, imageable_.right - paper_.left, upright.bottom};
        break;
    }
    return 0;
}

} // namespace halvern
