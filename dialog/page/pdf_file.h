// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QRectF>
#include <QTransform>

#include <vector>

namespace halvern {

/// A picture as it goes into a PDF file.
struct PdfImage {
    QSize size;
    int components = 3; ///< 1 gray, 3 RGB
    QByteArray filter;  ///< "DCTDecode" or "FlateDecode"
    QByteArray bytes;
};

/// Writes a PDF file with one picture on each page, page by page, so that only one picture is in memory.
/// Lengths are points to a thousandth; y grows downwards. Any thread.
class PdfFile {
public:
    explicit PdfFile(QIODevice& device);

    /// Adds a page of exactly `paper`. `placement` takes the picture's unit square, top left origin, to the
    /// page; what lies outside `clip` is cut away.
    void addPage(const QSizeF& paper, const QRectF& clip, const QTransform& placement, const PdfImage& image);

    /// Writes the end of the file. False if any write failed.
    bool finish();

private:
    int beginObject();
    void addStream(const QByteArray& dictionary, const QByteArray& bytes);
    void write(const QByteArray& bytes);

    QIODevice& device_;
    std::vector<qint64> offsets_;
    std::vector<int> pages_;
    qint64 written_ = 0;
    bool ok_ = true;
};

} // namespace halvern
