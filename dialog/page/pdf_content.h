// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QLineF>
#include <QPainterPath>
#include <QRectF>
#include <QTransform>

namespace halvern {

/// What is drawn on one page of a PDF file, in the order in which it is added. Lengths are points to a
/// thousandth; y grows downwards. Any thread, one at a time.
class PdfContent {
public:
    explicit PdfContent(const QSizeF& paper);

    /// The picture with this number on its page. `placement` takes its unit square, top left origin, to the
    /// page; what lies outside `clip` is cut away.
    void addPicture(int number, const QRectF& clip, const QTransform& placement);

    /// Black, so many points wide.
    void addLine(const QLineF& line, double width);
    void addFrame(const QRectF& rect, double width);

    /// Filled with black.
    void addShapes(const QPainterPath& shapes);

    const QByteArray& bytes() const { return bytes_; }

private:
    QTransform flip_; // PDF's own origin is the bottom left corner
    QByteArray bytes_;
};

/// A number as PDF files have it.
QByteArray pdfNumber(double value);

} // namespace halvern
