// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/colour_plan.h"
#include "dialog/photo/stored_picture.h"

#include <QString>

#include <memory>

namespace halvern {

/// A profile that is open in Little CMS; null: none. Read by several threads at once.
using OpenProfile = std::shared_ptr<void>;

/// Null unless it is a profile for pixels that conversions can be made from or to.
OpenProfile openProfile(const QByteArray& bytes);

/// sRGB, or of one channel with sRGB's curve.
OpenProfile srgbProfile(bool isGray = false);

/// Adobe RGB (1998) as an ICC profile's bytes.
const QByteArray& adobeRgbBytes();

/// The profile that tells what a picture's numbers mean: the embedded one if it is for this kind of pixels,
/// else what the camera has noted, else sRGB. Null for four inks without a profile.
OpenProfile sourceProfile(const StoredPicture& picture);

int channelsOf(const OpenProfile& profile);

/// Whether colours can be converted to it.
bool canConvertTo(const OpenProfile& profile);

/// A profile's own name, on one line: a stranger's text.
QString profileName(const OpenProfile& profile);

/// How Little CMS is handed the pixels of a picture.
quint32 pixelType(PixelFormat format);

/// Its number for an intent.
quint32 cmsIntent(ColourIntent intent);

/// How it hands out 1, 3 or 4 channels of 8 bits.
quint32 plainType(int channels);

} // namespace halvern
