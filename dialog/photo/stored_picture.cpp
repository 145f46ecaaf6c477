// SPDX-License-Identifier: MIT
#include "dialog/photo/stored_picture.h"

namespace halvern {

Orientation orientationOfTag(int tag)
{
    switch (tag) {
    case 2:
        return {0, true};
    case 3:
        return {2, false};
    case 4:
        return {2, true};
    case 5:
        return {3, true};
    case 6:
        return {1, false};
    case 7:
        return {1, true};
    case 8:
        return {3, false};
    default:
        return {};
    }
}

int channelsOf(PixelFormat format)
{
    switch (format) {
    case PixelFormat::gray8:
    case PixelFormat::gray16:
        return 1;
    case PixelFormat::rgb8:
    case PixelFormat::rgb16:
        return 3;
    case PixelFormat::cmyk8:
        return 4;
    }
    return 0;
}

int bytesPerPixel(PixelFormat format)
{
    const bool isDeep = format == PixelFormat::gray16 || format == PixelFormat::rgb16;
    return channelsOf(format) * (isDeep ? 2 : 1);
}

} // namespace halvern
