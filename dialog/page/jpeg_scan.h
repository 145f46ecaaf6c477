// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QIODevice>

namespace halvern {

/// A JPEG file's bytes up to the data of its first scan: all that it says of its pixels. Empty if it is none,
/// or if that is absurdly much. Any thread.
QByteArray readJpegHead(QIODevice& file);

/// Reads a JPEG file from its beginning through to its end marker without unpacking it: whether nothing is
/// missing that can be seen so. A file that was cut off, has a hole of zeros, or whose restart markers are
/// out of order is none, and some that a decoder reads without trouble are none either. Any thread.
bool isJpegInOrder(QIODevice& file);

} // namespace halvern
