// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/photo/stored_picture.h"

#include <QString>

namespace halvern {

/// A picture's pixels from its top to its bottom, as they are stored: in the file's own colours, and not yet
/// upright. Where a picture lets paper through, its pixels lie on white. Only a few rows are in memory at a
/// time. One thread at a time.
class PictureRows {
public:
    virtual ~PictureRows() = default;

    virtual const StoredPicture& picture() const = 0;

    /// Writes the next rows, without gaps between them, where `rows` has room for `count` of them. Answers
    /// how many: fewer than `count` at the end, or because the rest cannot be read.
    virtual int read(uchar* rows, int count) = 0;

    /// Once read() answered fewer rows than the picture still has: the sentence about it. Once all rows are
    /// read: empty, or a sentence if the file is not what it was when it was opened.
    virtual QString problem() const = 0;

    /// Once all rows are read: whether some of the pixels are made up.
    virtual bool isDamaged() const = 0;
};

/// All rows that are left, without gaps; fewer if they cannot be read, see problem().
QByteArray readAllRows(PictureRows& rows);

} // namespace halvern
