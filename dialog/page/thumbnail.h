// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/thumbnail_cache.h"

namespace halvern {

/// A photo's thumbnail: from the desktop's cache, from what its camera has put into the file, or made from
/// its pixels, whichever is there first. Upright, in sRGB, as long as the size says or shorter; null if it
/// cannot be read. `cache` null: nothing is looked up or kept. All of it is decoded by halvern-decode. Call
/// it on a worker. Any thread.
QImage readThumbnail(const Photo& photo, ThumbnailSize size, const ThumbnailCache* cache);

} // namespace halvern
