// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/photo.h"
#include "dialog/photo/photo_details.h"

namespace halvern {

/// What a photo's file tells of itself, for a user to read.
struct PhotoFacts {
    PhotoDetails details;
    QString
        colours; ///< the name of the embedded profile that counts, a stranger's text; empty: there is none
    ColorTag colorTag = ColorTag::none;
    int channels = 3; ///< 1 gray, 3 colours, 4 inks
    QString problem;  ///< a sentence if it cannot be read
};

/// Reads the facts, and no pixels. Call it on a worker. Any thread.
PhotoFacts readPhotoFacts(const Photo& photo);

} // namespace halvern
