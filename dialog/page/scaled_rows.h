// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/photo/picture_rows.h"

#include <memory>
#include <vector>

namespace halvern {

/// A picture made smaller while it is read: each pixel is the mean of those that it covers.
class ScaledRows : public PictureRows {
public:
    /// `size` is at most the picture's own each way.
    ScaledRows(std::unique_ptr<PictureRows> rows, const QSize& size);

    const StoredPicture& picture() const override { return picture_; }

    int read(uchar* rows, int count) override;

    QString problem() const override { return rows_->problem(); }

    bool isDamaged() const override { return rows_->isDamaged(); }

private:
    bool readRow();
    void add(double weight);
    void writeRow(uchar* target);

    std::unique_ptr<PictureRows> rows_;
    StoredPicture picture_;
    QSize given_;
    std::vector<uchar> row_;
    std::vector<float> sums_; // of each channel of each given column, over the rows that the next one covers
    std::vector<float> means_;
    int rowsRead_ = 0;
    int rowsWritten_ = 0;
};

} // namespace halvern
