// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/decode/picture_source.h"
#include "dialog/photo/exif_notes.h"

#include <QString>

namespace halvern {

/// The reader for a file, chosen by its content; `suffix` helps where camera RAW pretends to be TIFF. Throws
/// Unreadable.
std::unique_ptr<PhotoReader> readerFor(FileBytes bytes, const QString& suffix, const ExifNotes& notes);

bool isHeif(FileBytes bytes);

// One for each format; they throw Unreadable. A JPEG file's own notes are read as the dialog reads them.
std::unique_ptr<PhotoReader> makeJpegReader(FileBytes bytes);
std::unique_ptr<PhotoReader> makePngReader(FileBytes bytes, const ExifNotes& notes);
std::unique_ptr<PhotoReader> makeTiffReader(FileBytes bytes, const ExifNotes& notes);
std::unique_ptr<PhotoReader> makeWebpReader(FileBytes bytes, const ExifNotes& notes);
std::unique_ptr<PhotoReader> makeHeifReader(FileBytes bytes, const ExifNotes& notes);
std::unique_ptr<PhotoReader> makePdfReader(FileBytes bytes);
/// What the toolkit reads beside them: BMP, GIF, PNM and the like.
std::unique_ptr<PhotoReader> makeOtherReader(FileBytes bytes, const QString& suffix);

/// A line for each format and the library that reads it, for --version.
QString readerVersions();

} // namespace halvern
