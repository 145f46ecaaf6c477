// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/decode/picture_source.h"

namespace halvern {

/// Nearly a sector of a disk or a card: what was not copied reads as zeros.
inline constexpr size_t kHole = 480; // bytes

/// Whether so many bytes of zeros follow each other. What that says is the packing's matter: long runs of one
/// colour are zeros in some.
bool hasHole(FileBytes data, size_t least = kHole);

/// Whether the bytes from `from` to `to` of a file have a hole that begins and ends where sectors do, or ends
/// with them. For packings in which a flat area is zeros, too: those begin and end anywhere.
bool hasLostSector(FileBytes file, size_t from, size_t to);

/// Whether deflated data unpack to the checksum at their end.
bool isDeflatedWhole(FileBytes data);

/// Whether one of a PDF document's JPEG pictures cannot be decoded, or a packed stream has a hole that its
/// checksum tells of. Its library draws such a page, and says nothing.
bool hasDamagedStream(FileBytes document);

/// Whether one of an HEIF file's pictures has a hole. Neither of the two ways in which they are packed gives
/// so many zeros.
bool hasHeifHole(FileBytes file);

} // namespace halvern
