// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/colour_plan.h"
#include "dialog/photo/stored_picture.h"

#include <memory>

namespace halvern {

/// Converts a picture's pixels into a plan's colours, 8 bits a channel. Gray pixels stay gray where the plan
/// is sRGB. What the last ones were made of is kept, so that a thousand photos of one camera take one. Any
/// thread, several at once.
class ColourTransform {
public:
    ColourTransform(const StoredPicture& picture, const ColourPlan& plan);

    /// Of what comes out: 1, 3 or 4.
    int channels() const;

    /// Whether the numbers may stay as they are: to the last bit but one they say the same in the plan.
    bool changesNothing() const;

    /// Converts on the calling thread; `to` has room for channels() bytes a pixel.
    void convert(const uchar* from, uchar* to, qsizetype pixels) const;

    /// The same on all of the computer's cores.
    void convertOnAllCores(const uchar* from, uchar* to, qsizetype pixels) const;

private:
    struct Made;

    static std::shared_ptr<const Made> make(const StoredPicture& picture, const ColourPlan& plan);
    static std::shared_ptr<const Made> find(const StoredPicture& picture, const ColourPlan& plan);

    std::shared_ptr<const Made> made_;
};

} // namespace halvern
