// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/thumbnail.h"
#include "platform/foundation/threads/work_queue.h"

#include <QObject>

#include <deque>
#include <map>
#include <memory>

namespace halvern {

/// Thumbnails of the photos that are in sight. Two workers read them, in the order in which they are wanted;
/// what has been out of sight for long is forgotten, so that a thousand photos take no more memory than a few
/// hundred. Main thread only; never waits.
class Thumbnails : public QObject {
    Q_OBJECT

public:
    /// If not `isKept`, the desktop's cache is left alone.
    Thumbnails(bool isKept, QObject* parent);

    /// So many pixels of the screen are shown of each one's longer edge.
    void setEdge(int pixels);

    /// What is in sight now, the first first; what was wanted before and has not been begun is dropped.
    void want(std::vector<Photo> photos);

    /// Null as long as it is not read, and if it cannot be.
    QImage find(const Photo& photo) const;

    /// Whether it cannot be read.
    bool isBroken(const Photo& photo) const;

Q_SIGNALS:
    /// There is one more.
    void ready(const QString& path, int page);

private:
    using Key = std::pair<QString, int>;

    struct Kept {
        QImage image; // null: it cannot be read
        ThumbnailSize size;
        quint64 wantedLast = 0;
    };

    void readNext();
    void read(const WorkQueue& worker, size_t number, const Photo& photo);
    void take(const Key& key, const QImage& image, ThumbnailSize size);
    bool isThere(const Key& key) const;

    std::shared_ptr<const ThumbnailCache> cache_;
    ThumbnailSize size_ = ThumbnailSize::normal;
    std::deque<Photo> wanted_;
    std::map<Key, Kept> kept_;
    quint64 round_ = 0;
    std::vector<WorkQueue> workers_;
    std::vector<std::optional<Key>> reading_; // by the workers' numbers
};

} // namespace halvern
