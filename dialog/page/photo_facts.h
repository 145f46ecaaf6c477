// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/photo.h"
#include "dialog/photo/photo_details.h"

namespace halvern {

/// What a photo's file tells of itself, for a user to read.
struct PhotoFacts {
    PhotoDetails details;
    QString colours; ///< the embedded profile's name, a stranger's text; empty: there is none
    ColorTag colorTag = ColorTag::none;
    QString problem; ///< a sentence if it cannot be read
};

/// Reads the facts, and no pixels. Call it on a worker. Any thread.
PhotoFacts readPhotoFacts(const Photo& photo);

} // namespace halvern
