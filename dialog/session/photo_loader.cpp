// SPDX-License-Identifier: MIT
#include "dialog/session/photo_loader.h"

#include "platform/foundation/threads/work_queue.h"

#include <QPointer>

#include <algorithm>

namespace halvern {

PhotoLoader::PhotoLoader(QStringList files, bool printDamaged, QList<QPointF> positions)
    : files_(std::move(files)),
      printDamaged_(printDamaged),
      positions_(std::move(positions)),
      filesLeft_(int(files_.size())),
      stop_(cups::makeCancelFlag())
{
}

PhotoLoader::~PhotoLoader()
{
    stop_->store(true);
}

void PhotoLoader::start()
{
    QPointer<PhotoLoader> self(this);
    const WorkQueue queue;
    for (const QString& path : files_) {
        queue.async([self, path, stop = stop_] {
            if (stop->load())
                return;
            PhotoFile file = readPhotoFile(path);
            mainQueue().async([self, file = std::move(file)] {
                if (self)
                    self->take(file);
            });
        });
    }
}

void PhotoLoader::take(const PhotoFile& file)
{
    --filesLeft_;
    for (const Photo& page : file.pages) {
        photos_.push_back(page);
        if (!positions_.isEmpty())
            photos_.back().position = positions_[std::min(qsizetype(photos_.size()), positions_.size()) - 1];
    }
    if (!file.problem.isEmpty() && file.pages.empty()) {
        Q_EMIT failed(file.problem);
    } else if (!file.problem.isEmpty()) {
        if (!printDamaged_)
            damagedFiles_.append(file.problem);
        Q_EMIT damaged(file.problem);
    }
    Q_EMIT changed();
}

void PhotoLoader::setPosition(size_t photo, const QPointF& position)
{
    if (photo < photos_.size())
        photos_[photo].position = position;
}

void PhotoLoader::centre()
{
    for (Photo& photo : photos_)
        photo.position = Photo().position;
}

void PhotoLoader::settleDamaged(bool print)
{
    damagedFiles_.clear();
    if (!print) {
        std::erase_if(photos_, [](const Photo& photo) { return photo.isDamaged; });
        Q_EMIT changed();
    }
}

} // namespace halvern
