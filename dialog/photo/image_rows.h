// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/photo/picture_rows.h"

#include <QImage>

namespace halvern {

/// Rows of a picture that is in memory as a whole.
class ImageRows : public PictureRows {
public:
    ImageRows(QImage image, bool isDamaged);

    const StoredPicture& picture() const override { return picture_; }

    int read(uchar* rows, int count) override;

    QString problem() const override { return {}; }

    bool isDamaged() const override { return isDamaged_; }

private:
    void copyRow(uchar* target) const;

    StoredPicture picture_;
    QImage image_;
    bool isDamaged_;
    int row_ = 0;
};

/// The picture of some rows that follow each other without gaps; four inks become no picture. A deep RGB one
/// gets 16 bits for each channel. Null if there is no memory for it.
QImage imageOfRows(const StoredPicture& picture, const uchar* rows, int count);

} // namespace halvern
