// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/photo/stored_picture.h"

namespace halvern {

/// What a job has to know of a camera's notes.
struct ExifNotes {
    Orientation orientation;
    ColorTag colorTag = ColorTag::none;
};

/// Reads the notes of a JPEG file's first Exif segment, which are a TIFF file of their own. What is wrong in
/// them is as if it were not there. Any thread.
ExifNotes readExifNotes(const QByteArray& tiff);

/// The small JPEG file that a camera has put into its notes; empty if there is none. Any thread.
QByteArray embeddedThumbnail(const QByteArray& tiff);

} // namespace halvern
