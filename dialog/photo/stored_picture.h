// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QSize>

namespace halvern {

/// Some formats count dots per centimetre.
inline constexpr double kCentimetresPerInch = 2.54;

/// How a stored picture becomes an upright one.
struct Orientation {
    int quarterTurns = 0;    ///< clockwise
    bool isMirrored = false; ///< left to right, before it is turned

    QSize upright(const QSize& stored) const { return quarterTurns % 2 ? stored.transposed() : stored; }

    bool operator==(const Orientation&) const = default;
};

/// What a camera or a program writes: 1 to 8; anything else is taken as upright.
Orientation orientationOfTag(int tag);

/// The numbers of a pixel, without gaps. 16 bits are in the machine's own order; 0 of an ink is none of it.
enum class PixelFormat : quint8 { gray8, gray16, rgb8, rgb16, cmyk8 };

int channelsOf(PixelFormat format);
int bytesPerPixel(PixelFormat format);

/// The colour space that a camera has noted beside the pixels.
enum class ColorTag : quint8 { none, sRgb, adobeRgb };

/// A picture as its file has it, without its pixels: nothing is converted or turned.
struct StoredPicture {
    QSize size;     ///< of the pixels that are handed over: they may be scaled down
    QSize fullSize; ///< in the file
    PixelFormat format = PixelFormat::rgb8;
    QByteArray profile; ///< ICC, of the pixels' kind or not; empty: none
    ColorTag colorTag = ColorTag::none;
    Orientation orientation;
    double dotsPerInch = 0.0; ///< 0: not said

    qsizetype rowBytes() const { return qsizetype(size.width()) * bytesPerPixel(format); }
};

} // namespace halvern
