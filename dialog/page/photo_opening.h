// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/photo.h"

namespace halvern {

/// Like readPhotoFile(), but no JPEG file is decoded that is seen to be whole without it: its page has no
/// preview. Call it on a worker. Any thread.
PhotoFile openPhotoFile(const QString& path);

/// A photo's preview, read now.
struct SmallCopy {
    QImage image; ///< as in Photo; null with a sentence in `problem`
    bool isDamaged = false;
    QString problem;
};

/// Reads row after row, so that the photo's size costs no memory. Call it on a worker. Any thread.
SmallCopy readSmallCopy(const Photo& photo);

} // namespace halvern
