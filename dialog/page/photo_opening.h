// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/photo.h"

namespace halvern {

/// Like readPhotoFile(), but no JPEG file is decoded that is seen to be whole without it: its page has no
/// preview. Call it on a worker. Any thread.
PhotoFile openPhotoFile(const QString& path);

/// A photo's preview, or a smaller one, read now.
struct SmallCopy {
    QImage image; ///< as in Photo; null with a sentence in `problem`
    bool isDamaged = false;
    QString problem;
};

/// Reads a copy whose longer edge has `edge` pixels at most, row after row, so that the photo's size costs
/// no memory. Call it on a worker. Any thread.
SmallCopy readSmallCopy(const Photo& photo, int edge = kPreviewEdge);

} // namespace halvern
