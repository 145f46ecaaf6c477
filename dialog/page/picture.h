// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/photo/picture_rows.h"

#include <QImage>

#include <memory>
#include <vector>

namespace halvern {

/// What the camera has noted in a JPEG file.
Orientation jpegOrientation(const QByteArray& bytes);

/// A decoded picture: upright and in sRGB, or the sentence that says why there is none.
struct Picture {
    QImage image;
    QSize pixels;             ///< of the whole, also where `image` was scaled down
    double dotsPerInch = 0.0; ///< 0: not said
    bool isDamaged = false;   ///< some of the pixels are made up
    QString problem;
};

/// The file's pictures: 0, or a TIFF file's directories that are photos. Any thread, like all here.
std::vector<int> picturesIn(const QString& path);

/// Opens one of a file's pictures: JPEG, PNG, TIFF and what else Qt reads. It may come scaled down, as long
/// as its longer edge has `leastEdge` pixels; 0: never. Null, with a sentence in `problem`, if there is none.
std::unique_ptr<PictureRows> openPicture(const QString& path, int page, int leastEdge, QString* problem);

/// Reads all rows.
Picture readPicture(PictureRows& rows);

/// Decodes one of a file's pictures, scaled down as openPicture() does.
Picture readPicture(const QString& path, int page, int leastEdge);

/// The bytes of a file that is small enough to be held in memory and begins as a JPEG file; else nothing.
QByteArray jpegBytes(const QString& path);

} // namespace halvern
