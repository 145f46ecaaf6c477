// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/pdf_content.h"

#include <QByteArray>
#include <QIODevice>
#include <QSize>

#include <vector>

namespace halvern {

/// What a PDF file has to know of a picture before its data.
struct PdfImage {
    QSize size;
    int components = 3; ///< 1 gray, 3 RGB, 4 inks
    QByteArray filter;  ///< "DCTDecode" or "FlateDecode"
};

/// Writes a PDF file, the pictures of a page before the page. What is written is out of memory at once, so
/// that neither the number of pages nor the size of a picture counts. Lengths are points to a thousandth; y
/// grows downwards. Any thread, one at a time.
class PdfFile {
public:
    explicit PdfFile(QIODevice& device);

    /// Begins a picture.
    void beginPicture(const PdfImage& image);

    /// The next of the picture's data, packed as its filter says. False if they could not be written.
    bool addToPicture(const char* bytes, qsizetype count);

    /// Ends the picture, and answers how addPage() names it.
    int endPicture();

    /// Adds a page of exactly `paper`; the content's picture 0 is the first of `pictures`.
    void addPage(const QSizeF& paper, const PdfContent& content, const std::vector<int>& pictures);

    /// Writes something that means nothing, for whoever would take a long silence for the end. Not within
    /// a picture.
    void sayStillHere();

    /// Writes the end of the file. False if any write failed.
    bool finish();

private:
    int beginObject();
    void addContent(const QByteArray& content);
    void write(const QByteArray& bytes);
    void writeTable();
    void writeTableStream();

    QIODevice& device_;
    std::vector<qint64> offsets_;
    std::vector<int> pages_;
    int picture_ = 0;
    qint64 pictureStart_ = 0;
    qint64 written_ = 0;
    bool ok_ = true;
};

} // namespace halvern
