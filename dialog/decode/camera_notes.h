// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/decode/readers.h"

namespace halvern {

/// What a file's metadata say; nothing where there are none, or they cannot be read.
struct Metadata {
    ExifNotes notes;
    PhotoDetails details;
};

Metadata metadataOf(FileBytes bytes);

/// The same of a block of Exif data alone.
ExifNotes notesOfExif(FileBytes exif);

} // namespace halvern
