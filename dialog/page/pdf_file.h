// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QRectF>
#include <QTransform>

#include <vector>

namespace halvern {

/// What a PDF file has to know of a picture before its data.
struct PdfImage {
    QSize size;
    int components = 3; ///< 1 gray, 3 RGB, 4 inks
    QByteArray filter;  ///< "DCTDecode" or "FlateDecode"
};

/// Writes a PDF file with one picture on each page. What is written is out of memory at once, so that neither
/// the number of pages nor the size of a picture counts. Lengths are points to a thousandth; y grows
/// downwards. Any thread, one at a time.
class PdfFile {
public:
    explicit PdfFile(QIODevice& device);

    /// Begins a page: its picture comes first.
    void beginPicture(const PdfImage& image);

    /// The next of the picture's data, packed as its filter says. False if they could not be written.
    bool addToPicture(const char* bytes, qsizetype count);

    /// Ends the picture and adds the page, of exactly `paper`. `placement` takes the picture's unit square,
    /// top left origin, to the page; what lies outside `clip` is cut away.
    void endPage(const QSizeF& paper, const QRectF& clip, const QTransform& placement);

    /// Writes something that means nothing, for whoever would take a long silence for the end. Between pages
    /// only.
    void sayStillHere();

    /// Writes the end of the file. False if any write failed.
    bool finish();

private:
    int beginObject();
    void addContent(const QByteArray& content);
    void write(const QByteArray& bytes);

    QIODevice& device_;
    std::vector<qint64> offsets_;
    std::vector<int> pages_;
    int picture_ = 0;
    qint64 pictureStart_ = 0;
    qint64 written_ = 0;
    bool ok_ = true;
};

} // namespace halvern
