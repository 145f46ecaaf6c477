// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/decode/picture_source.h"

#include <QImage>

namespace halvern {

/// A picture that is in memory as a whole.
class ImageSource : public PictureSource {
public:
    ImageSource(QImage image, bool isDamaged, const QSizeF& ownSize = {0.0, 0.0});

    bool readRow(uchar* row) override;

    bool isDamaged() const override { return isDamaged_; }

private:
    QImage image_;
    bool isDamaged_;
    int row_ = 0;
};

} // namespace halvern
