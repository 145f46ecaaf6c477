// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/photo.h"
#include "dialog/page/picture.h"

#include <QByteArray>

#include <optional>

namespace halvern {

/// A JPEG file whose compressed data can go into a print job as they stand.
struct JpegData {
    QByteArray bytes;
    QSize size;         ///< as stored
    int components = 3; ///< 1 or 3
    Orientation orientation;
};

/// Nothing if the photo is no such JPEG: another format, four components, damaged, changed since, or colours
/// that need converting. Decodes no pixels. Any thread.
std::optional<JpegData> readJpegData(const Photo& photo);

} // namespace halvern
