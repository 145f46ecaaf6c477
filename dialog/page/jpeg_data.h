// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/photo.h"

#include <QByteArray>

#include <optional>

namespace halvern {

/// What a JPEG file says before its pixels, without the pixels.
struct JpegInfo {
    QSize size;         ///< as stored
    int components = 3; ///< 1 gray, 3 colours, 4 inks
    QByteArray profile; ///< ICC; empty: none
    Orientation orientation;
    double dotsPerInch = 0.0; ///< 0: not said
    bool suitsPdf = false;    ///< each reader of PDF files decodes it to the pixels that we see
    ColorTag colorTag = ColorTag::none;
    QByteArray thumbnail; ///< the small JPEG file that a camera has put in; empty: none
    bool isWhole = false; ///< a decoder finds nothing wrong with it; false if only a decoder can say

    /// The same as a decoder would say it.
    StoredPicture asStored() const;
};

/// Reads a file's head only, and with `through` the whole of it, which sets isWhole. Nothing if it is no JPEG
/// file. Any thread.
std::optional<JpegInfo> readJpegInfo(const QString& path, bool through);

/// What of a photo's file can go into a print job as it stands, as far as its colours may: nothing if the
/// photo is another format, has four components, is damaged, or has changed since. Reads the head only. Any
/// thread.
std::optional<JpegInfo> untouchableJpeg(const Photo& photo);

} // namespace halvern
