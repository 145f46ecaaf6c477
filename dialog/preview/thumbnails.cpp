// SPDX-License-Identifier: MIT
#include "dialog/preview/thumbnails.h"

#include <QPointer>

#include <algorithm>

namespace halvern {

namespace {

constexpr size_t kAtOnce = 2;
constexpr size_t kMostKept = 300;

} // namespace

Thumbnails::Thumbnails(bool isKept, QObject* parent) : QObject(parent), workers_(kAtOnce), reading_(kAtOnce)
{
    if (isKept)
        cache_ = std::make_shared<const ThumbnailCache>();
}

void Thumbnails::setEdge(int pixels)
{
    size_ = pixels <= int(ThumbnailSize::normal) ? ThumbnailSize::normal : ThumbnailSize::large;
}

QImage Thumbnails::find(const Photo& photo) const
{
    const auto known = kept_.find({photo.path, photo.page});
    return known == kept_.end() ? QImage() : known->second.image;
}

bool Thumbnails::isBroken(const Photo& photo) const
{
    const auto known = kept_.find({photo.path, photo.page});
    return known != kept_.end() && known->second.image.isNull();
}

bool Thumbnails::isThere(const Key& key) const
{
    const auto known = kept_.find(key);
    return known != kept_.end() && known->second.size >= size_;
}

void Thumbnails::want(std::vector<Photo> photos)
{
    ++round_;
    wanted_.clear();
    for (Photo& photo : photos) {
        const Key key(photo.path, photo.page);
        if (const auto known = kept_.find(key); known != kept_.end())
            known->second.wantedLast = round_;
        if (!isThere(key))
            wanted_.push_back(std::move(photo));
    }
    readNext();
}

void Thumbnails::readNext()
{
    for (size_t i = 0; i < workers_.size(); ++i) {
        while (!reading_[i] && !wanted_.empty()) {
            const Photo photo = std::move(wanted_.front());
            wanted_.pop_front();
            const Key key(photo.path, photo.page);
            if (!isThere(key) && std::ranges::find(reading_, std::optional(key)) == reading_.end())
                read(workers_[i], i, photo);
        }
    }
}

void Thumbnails::read(const WorkQueue& worker, size_t number, const Photo& photo)
{
    const QPointer<Thumbnails> self(this);
    const Key key(photo.path, photo.page);
    const bool isQueued = worker.async([self, number, key, photo, size = size_, cache = cache_] {
        const QImage image = readThumbnail(photo, size, cache.get());
        mainQueue().async([self, number, key, image, size] {
            if (!self)
                return;
            self->reading_[number].reset();
            self->take(key, image, size);
            self->readNext();
        });
    });
    if (isQueued)
        reading_[number] = key;
}

void Thumbnails::take(const Key& key, const QImage& image, ThumbnailSize size)
{
    kept_[key] = {image, size, round_};
    while (kept_.size() > kMostKept) {
        const auto oldest =
            std::ranges::min_element(kept_, {}, [](const auto& each) { return each.second.wantedLast; });
        kept_.erase(oldest);
    }
    Q_EMIT ready(key.first, key.second);
}

} // namespace halvern
