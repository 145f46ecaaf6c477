// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/photo/decoder_wire.h"

#include <memory>
#include <span>

namespace halvern {

/// A file's bytes; they stay where they are for as long as the process lives.
using FileBytes = std::span<const uchar>;

/// Thrown when a file or one of its pictures cannot be read, all over this room.
struct Unreadable {
    PhotoFault fault = PhotoFault::damaged;
};

/// A picture that is being decoded, from its top to its bottom.
class PictureSource {
public:
    virtual ~PictureSource() = default;

    const StoredPicture& picture() const { return picture_; }

    /// Writes the next row. False if it and all that follow cannot be read. Call it for each row once.
    virtual bool readRow(uchar* row) = 0;

    /// Once all rows are read: whether some pixels are made up.
    virtual bool isDamaged() const = 0;

    /// Of a document's page, in points.
    QSizeF ownSize() const { return ownSize_; }

protected:
    StoredPicture picture_;
    QSizeF ownSize_{0.0, 0.0};
};

/// A file of one format.
class PhotoReader {
public:
    virtual ~PhotoReader() = default;

    /// "JPEG"
    virtual QString kind() const = 0;

    virtual QList<qint32> pages() const { return {0}; }

    virtual bool isPdf() const { return false; }

    /// Once pages() was called: whether the file goes on where it ends.
    virtual bool isCutOff() const { return false; }

    virtual std::unique_ptr<PictureSource> open(const ReadRequest& request) = 0;
};

/// Throws Unreadable if the picture has no pixels, or more than may be.
void checkSize(qint64 width, qint64 height);

/// The picture of which the first row can be read: what is missing after that is gray, and damage.
std::unique_ptr<PictureSource> withGrayForMissing(std::unique_ptr<PictureSource> source);

/// The picture scaled down by a whole number, as long as its longer edge keeps `leastEdge` pixels; 0: never.
std::unique_ptr<PictureSource> scaledDown(std::unique_ptr<PictureSource> source, int leastEdge);

/// Puts pixels that let the paper through on white: `channels` numbers each and one that says how much of it
/// is there, with what is not there already taken out or not. White is the highest number, or 0 `ofInk`.
/// Writes `channels` numbers for each pixel.
template <typename Number>
void layOnWhite(const Number* from, Number* to, int pixels, int channels, bool isPremultiplied = false,
                bool ofInk = false)
{
    constexpr quint32 kFull = Number(~Number(0));
    const quint64 white = ofInk ? 0 : kFull;
    for (; pixels > 0; --pixels, from += channels + 1, to += channels) {
        const quint32 there = from[channels];
        for (int i = 0; i < channels; ++i) {
            const quint64 ink = isPremultiplied ? quint64(from[i]) * kFull : quint64(from[i]) * there;
            const quint64 sum = (ink + white * (kFull - there) + kFull / 2) / kFull;
            to[i] = Number(sum < kFull ? sum : kFull);
        }
    }
}

} // namespace halvern
