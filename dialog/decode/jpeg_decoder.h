// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/decode/picture_source.h"
#include "dialog/photo/exif_notes.h"

#include <QByteArray>
#include <QSize>

#include <memory>
#include <optional>

namespace halvern {

/// What a JPEG file says before its pixels.
struct JpegHeader {
    QSize size;               ///< as stored
    int components = 0;       ///< 1 gray, 3 colours, 4 inks
    QByteArray profile;       ///< ICC; empty: none
    double dotsPerInch = 0.0; ///< 0: not said
    bool isInverted = false;  ///< four inks with 255 for none, as Adobe's programs write them
    ExifNotes notes;          ///< as whoever prints the file as it stands reads them
};

/// Decodes a JPEG file that is in memory. Any thread, one at a time.
class JpegDecoder {
public:
    explicit JpegDecoder(FileBytes bytes);
    ~JpegDecoder();

    /// Nothing if it is no JPEG file, or one that cannot be read.
    const std::optional<JpegHeader>& header() const { return header_; }

    /// Chooses the size to decode in: scaled down as long as the longer edge has `leastEdge` pixels; 0:
    /// never. With a header only.
    QSize sizeFor(int leastEdge);

    /// Starts to decode: gray, RGB or four inks with 0 for none, 8 bits each, as they are stored. False if it
    /// cannot. Call it once, and with a header only.
    bool start();

    /// The next row, into room for it. False if it cannot be decoded.
    bool readRow(uchar* row);

    /// Why there is no header, it cannot start, or has no next row.
    PhotoFault fault() const;

    /// Once all rows are read: whether pixels had to be made up, because data were missing or wrong.
    bool isDamaged() const;

private:
    struct State;

    JpegHeader describe();

    FileBytes bytes_;
    std::unique_ptr<State> state_;
    std::optional<JpegHeader> header_;
};

} // namespace halvern
