// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>
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
    /// Whether each reader of PDF files decodes it to the pixels that we see: Huffman-coded, gray or YCbCr.
    bool suitsPdf = false;
};

/// Decodes a JPEG file that is in memory. Any thread, one at a time.
class JpegDecoder {
public:
    explicit JpegDecoder(const QByteArray& bytes);
    ~JpegDecoder();

    /// Nothing if it is no JPEG file, or one that cannot be read.
    const std::optional<JpegHeader>& header() const { return header_; }

    /// The pixels as they are stored, converted to sRGB from the file's profile: gray, or RGB with 8 bits
    /// each. The picture may be scaled down as long as its longer edge has `leastEdge` pixels; 0: never. Null
    /// if it cannot be decoded. Call it once, and with a header only.
    QImage read(int leastEdge);

    /// Whether read() had to make up pixels, because data were missing or wrong.
    bool isDamaged() const;

private:
    struct State;

    JpegHeader describe();
    void scaleDown(int leastEdge);

    QByteArray bytes_;
    std::unique_ptr<State> state_;
    std::optional<JpegHeader> header_;
};

} // namespace halvern
