// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/colour_plan.h"
#include "dialog/page/page_layout.h"
#include "dialog/page/photo.h"

#include <QIODevice>

#include <functional>

class QPainter;

namespace halvern {

/// The page to print: which photo, and where it lies.
struct PageToPrint {
    Photo photo;
    PageLayout layout;
};

/// Where the unit square of the upright photo lands on the upright sheet, in points, y growing downwards.
/// Preview and print job both place the photo by this and by the layout's imageable area, and by nothing
/// else.
QTransform photoToSheet(const PageLayout& layout);

/// Draws the page as it will come out: white paper and what of the photo is printed. The painter's units are
/// points of the page, turned as the user looks at it.
void paintPage(QPainter& painter, const PageLayout& layout, const QImage& photo);

/// How whoever writes a PDF file is told to wait or to stop. Both are called on the thread that writes.
struct PdfControl {
    std::function<bool(double)> keepGoing;    ///< asked between pages, with the share done
    std::function<bool()> isPaused = nullptr; ///< looked at between pages; null: never
};

/// What a PDF file's pictures are made for.
struct PdfQuality {
    int resolution = 300; ///< the printer's dots per inch
    ColourPlan colours = {};
};

/// Writes one PDF page of exactly the sheet's size for each page, picture after picture and row after row, so
/// that neither the number of pages nor the size of a picture counts. JPEG data whose colours need no
/// converting go in untouched; other pictures without loss, at no more than twice the printer's resolution.
/// Answers the sentence about what failed, empty on success; also empty if it was told to stop. Any thread.
QString writePdf(QIODevice& device, const std::vector<PageToPrint>& pages, const PdfQuality& quality,
                 const PdfControl& control);

} // namespace halvern
