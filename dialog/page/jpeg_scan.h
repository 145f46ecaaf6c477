// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QIODevice>

namespace halvern {

/// A JPEG file's bytes up to the data of its first scan: all that it says of its pixels. Empty if it is none,
/// or if that is absurdly much. Any thread.
QByteArray readJpegHead(QIODevice& file);

/// Goes through a JPEG file from its beginning to its end marker, and through the packed numbers of its
/// pixels without unpacking them: true if a decoder finds nothing wrong with them. False says nothing: a
/// decoder has to tell, of files that are progressive or packed otherwise than by most cameras, too. Any
/// thread.
bool isJpegInOrder(QIODevice& file);

} // namespace halvern
