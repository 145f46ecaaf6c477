// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/colour_plan.h"
#include "dialog/page/sheet_plan.h"

#include <QColor>
#include <QIODevice>

#include <functional>

class QPainter;

namespace halvern {

/// A sheet to print, with the photos that are on it.
struct SheetToPrint {
    SheetToPrint() = default;
    /// A photo alone, and where it lies.
    SheetToPrint(const Photo& photo, const PageLayout& layout);

    Sheet sheet;
    std::vector<Photo> photos; ///< each one's, in the sheet's order
    QString caption;           ///< the pattern of what stands under them
};

/// Where the unit square of the upright photo lands on the upright sheet, in points, y growing downwards.
/// Preview and print job both place the photo by this and by the layout's frame and imageable area, and by
/// nothing else.
QTransform photoToSheet(const PageLayout& layout);

/// Draws what of the photo is printed. The painter's units are points of the page, turned as the user looks
/// at it.
void paintPhoto(QPainter& painter, const PageLayout& layout, const QImage& photo);

/// The same on paper.
void paintPage(QPainter& painter, const PageLayout& layout, const QImage& photo,
               const QColor& paper = Qt::white);

/// Draws what is on the sheet beside its photos: thin lines, cut marks, and `captions`, which are in the
/// photos' order.
void paintMarks(QPainter& painter, const Sheet& sheet, const QStringList& captions);

/// How whoever writes a PDF file is told to wait or to stop. Both are called on the thread that writes.
struct PdfControl {
    std::function<bool(double)> keepGoing;    ///< asked between photos, with the share done
    std::function<bool()> isPaused = nullptr; ///< looked at between photos; null: never
};

/// What a PDF file's pictures are made for.
struct PdfQuality {
    int resolution = 300; ///< the printer's dots per inch
    ColourPlan colours = {};
};

/// Writes one PDF page of exactly the sheet's size for each sheet, picture after picture and row after row,
/// so that neither the number of pages nor the size of a picture counts. JPEG data whose colours need no
/// converting go in untouched, among several on a sheet if they have no more pixels than are of use; other
/// pictures without loss, at no more than twice the printer's resolution. A photo that is several times on a
/// sheet goes in once. Answers the sentence about what failed, empty on success; also empty if it was told to
/// stop. Any thread.
QString writePdf(QIODevice& device, const std::vector<SheetToPrint>& sheets, const PdfQuality& quality,
                 const PdfControl& control);

} // namespace halvern
