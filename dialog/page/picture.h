// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/photo/photo_decoder.h"
#include "dialog/photo/picture_rows.h"

#include <QImage>

#include <memory>

namespace halvern {

/// A decoded picture: upright and in sRGB, or the sentence that says why there is none.
struct Picture {
    QImage image;
    QSize pixels;             ///< of the whole, also where `image` was scaled down
    double dotsPerInch = 0.0; ///< 0: not said
    bool isDamaged = false;   ///< some of the pixels are made up
    QString problem;
};

/// Begins with a picture of an open file: its rows, or null, with a sentence in `problem`. Damage is told as
/// the problem `whenDamaged`, none: as isDamaged() only. Any thread, like all here.
std::unique_ptr<PictureRows> openPicture(const std::shared_ptr<PhotoDecoder>& file, const QString& path,
                                         const ReadRequest& request, PhotoFault whenDamaged,
                                         QString* problem);

/// Reads all rows.
Picture readPicture(PictureRows& rows);

} // namespace halvern
