// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/photo.h"

#include <optional>

namespace halvern {

/// The desktop's two usual sizes of thumbnails: the longest edge, in pixels.
enum class ThumbnailSize { normal = 128, large = 256 };

/// The thumbnails that the desktop's programs keep for each other, by the freedesktop.org convention: PNG
/// files named by the photo's address, good as long as the photo is as old as they say. They are other
/// programs' files: who finds one decodes it like a photo. Any thread.
class ThumbnailCache {
public:
    /// `root` holds the sizes' folders; empty: the user's own.
    explicit ThumbnailCache(QString root = QString());

    /// Whether thumbnails of this photo are kept there at all: the convention knows files, and no pages; a
    /// temporary file is gone before anybody looks for it.
    bool isFor(const Photo& photo) const;

    /// The thumbnail's file, of this size or larger; nothing if there is none that is as old as the photo's
    /// file, whose time is given in seconds since 1970.
    std::optional<QString> find(const QString& photo, qint64 changed, ThumbnailSize size) const;

    /// Keeps the thumbnail, for nobody else to read; false if it cannot be kept.
    bool store(const QString& photo, qint64 changed, ThumbnailSize size, QImage thumbnail) const;

    /// Where that is.
    QString pathFor(const QString& photo, ThumbnailSize size) const;

private:
    QString root_;
};

} // namespace halvern
