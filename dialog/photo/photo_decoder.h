// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/photo/decoder_process.h"

#include <memory>

namespace halvern {

/// A photo file that is being read: by halvern-decode, in a process of its own that may fail, hang or run out
/// of memory without harm to this one, which only checks and copies what that one says. Any thread, one at a
/// time; each call takes as long as reading takes, five minutes at most.
class PhotoDecoder {
public:
    /// Opens the file, of any format; what is no plain file is told to be unreadable.
    explicit PhotoDecoder(const QString& path);
    ~PhotoDecoder();
    PhotoDecoder(const PhotoDecoder&) = delete;
    PhotoDecoder& operator=(const PhotoDecoder&) = delete;

    /// What the file holds, or why nothing can be read of it.
    const OpenAnswer& file() const { return file_; }

    /// Begins with a picture; what was begun before is over. Decodes no pixels yet.
    const PictureAnswer& begin(const ReadRequest& request);

    /// The picture's next rows, without gaps; fewer than `count` at the end, or when fault() says why.
    int read(uchar* rows, int count);

    /// What begin() answered.
    const PictureAnswer& picture() const { return picture_; }

    PhotoFault fault() const { return fault_; }

    /// Whether nothing more can be asked: its process has gone.
    bool isOver() const;

    /// Whether pixels had to be made up so far.
    bool isDamaged() const { return isDamaged_; }

private:
    PhotoFault ask(const QByteArray& message, QByteArray* answer, Descriptor* descriptor);
    bool nextBand();
    Received receiveAnswer(QByteArray* answer, Descriptor* descriptor);

    // Outlives the process, whose end it may be.
    DecoderLease lease_;
    DecoderProcess process_;
    Descriptor photo_;
    OpenAnswer file_;
    PictureAnswer picture_;
    Mapping window_;
    PhotoFault fault_ = PhotoFault::none;
    bool isDamaged_ = false;
    int rowsLeft_ = 0;
    int bandsTaken_ = 0;
    int bandRow_ = 0;
    int bandRows_ = 0;
};

} // namespace halvern
