// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/colour_plan.h"
#include "dialog/photo/stored_picture.h"

#include <memory>

namespace halvern {

/// Converts a picture's pixels into a plan's colours, 8 bits a channel. Gray pixels stay gray where the plan
/// is sRGB. Any thread, several at once.
class ColourTransform {
public:
    ColourTransform(const StoredPicture& picture, const ColourPlan& plan);

    /// Of what comes out: 1, 3 or 4.
    int channels() const { return channels_; }

    /// Whether the numbers may stay as they are: to the last bit but one they say the same in the plan.
    bool changesNothing() const;

    /// Converts on the calling thread; `to` has room for channels() bytes a pixel.
    void convert(const uchar* from, uchar* to, qsizetype pixels) const;

    /// The same on all of the computer's cores.
    void convertOnAllCores(const uchar* from, uchar* to, qsizetype pixels) const;

private:
    PixelFormat format_;
    int channels_ = 3;
    bool hasIdealInks_ = false;       // no profile tells what the inks are
    std::shared_ptr<void> transform_; // null: none is needed
};

} // namespace halvern
