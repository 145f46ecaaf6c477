// SPDX-License-Identifier: MIT
#include "dialog/page/jpeg_data.h"

#include "dialog/page/jpeg_decoder.h"
#include "dialog/page/srgb.h"

namespace halvern {

std::optional<JpegData> readJpegData(const Photo& photo)
{
    // Made-up pixels differ from decoder to decoder: a damaged photo prints as it was shown.
    if (photo.isPdf || photo.isDamaged)
        return std::nullopt;
    const QByteArray bytes = jpegBytes(photo.path);
    const std::optional<JpegHeader> header = bytes.isEmpty() ? std::nullopt : JpegDecoder(bytes).header();
    if (!header || !header->suitsPdf || !isSrgb(header->profile, header->components == 1))
        return std::nullopt;
    const Orientation orientation = jpegOrientation(bytes);
    if (orientation.upright(header->size) != photo.pixels)
        return std::nullopt;
    return JpegData{bytes, header->size, header->components, orientation};
}

} // namespace halvern
