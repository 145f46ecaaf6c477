// SPDX-License-Identifier: MIT
#include "dialog/page/thumbnail.h"

#include "dialog/page/jpeg_data.h"
#include "dialog/page/photo_opening.h"
#include "dialog/page/picture.h"

#include <algorithm>
#include <cmath>

#include <sys/mman.h>
#include <unistd.h>

namespace halvern {

namespace {

constexpr int kMostEdge = 2048;        // of what somebody else has made small
constexpr double kShapeSlack = 0.04;   // of a small picture's edge, rounded to whole pixels
constexpr qint64 kMilliseconds = 1000; // of a second

/// Rows with what their photo says of the colours and of the way up: a camera notes both once.
class RowsOfCamera : public PictureRows {
public:
    RowsOfCamera(std::unique_ptr<PictureRows> rows, const JpegInfo& photo)
        : rows_(std::move(rows)), picture_(rows_->picture())
    {
        picture_.orientation = photo.orientation;
        picture_.colorTag = photo.colorTag;
        if (picture_.profile.isEmpty())
            picture_.profile = photo.profile;
    }

    const StoredPicture& picture() const override { return picture_; }

    int read(uchar* rows, int count) override { return rows_->read(rows, count); }

    QString problem() const override { return rows_->problem(); }

    bool isDamaged() const override { return rows_->isDamaged(); }

private:
    std::unique_ptr<PictureRows> rows_;
    StoredPicture picture_;
};

// Whether a small picture shows all of a photo and nothing else: some cameras put black bars around it.
bool hasShapeOf(const QSize& small, const QSize& photo)
{
    if (small.isEmpty() || photo.isEmpty())
        return false;
    const double shape = double(small.width()) / small.height();
    return std::abs(shape * photo.height() / photo.width() - 1.0) <= kShapeSlack;
}

std::unique_ptr<PictureRows> openSmall(const QString& path)
{
    const auto file = std::make_shared<PhotoDecoder>(path);
    if (file->fault() != PhotoFault::none || file->file().fault != PhotoFault::none)
        return nullptr;
    QString problem;
    std::unique_ptr<PictureRows> rows = openPicture(file, path, {0, 0, 0}, PhotoFault::damaged, &problem);
    const QSize size = rows ? rows->picture().size : QSize();
    return std::max(size.width(), size.height()) <= kMostEdge ? std::move(rows) : nullptr;
}

QImage fittedInto(const QImage& image, int edge)
{
    const bool isLarger = std::max(image.width(), image.height()) > edge;
    const QImage fitted =
        isLarger ? image.scaled(edge, edge, Qt::KeepAspectRatio, Qt::SmoothTransformation) : image;
    return fitted.convertToFormat(QImage::Format_RGB32);
}

QImage keptIn(const ThumbnailCache& cache, const Photo& photo, qint64 changed, ThumbnailSize size)
{
    const std::optional<QString> path = cache.find(photo.path, changed, size);
    const std::unique_ptr<PictureRows> rows = path ? openSmall(*path) : nullptr;
    const QImage image = rows ? readPicture(*rows).image : QImage();
    return photo.isPdf || hasShapeOf(image.size(), photo.pixels) ? image : QImage();
}

QImage embeddedIn(const Photo& photo, int edge)
{
    const std::optional<JpegInfo> head = readJpegInfo(photo.path, false);
    if (!head || head->thumbnail.isEmpty())
        return {};
    const Descriptor memory(memfd_create("thumbnail", MFD_CLOEXEC));
    const qsizetype size = head->thumbnail.size();
    if (!memory.isOpen() || write(memory.number(), head->thumbnail.constData(), size_t(size)) != size)
        return {};
    std::unique_ptr<PictureRows> rows = openSmall(QStringLiteral("/proc/self/fd/%1").arg(memory.number()));
    const QSize small = rows ? rows->picture().size : QSize();
    if (!hasShapeOf(small, head->size) || std::max(small.width(), small.height()) < edge)
        return {};
    return readPicture(*std::make_unique<RowsOfCamera>(std::move(rows), *head)).image;
}

} // namespace

QImage readThumbnail(const Photo& photo, ThumbnailSize size, const ThumbnailCache* cache)
{
    const int edge = int(size);
    const qint64 changed = stampOf(photo.path).changed / kMilliseconds;
    const bool isKept = cache && cache->isFor(photo);
    if (const QImage kept = isKept ? keptIn(*cache, photo, changed, size) : QImage(); !kept.isNull())
        return fittedInto(kept, edge);
    QImage made = photo.preview;
    if (made.isNull() && photo.page == 0)
        made = embeddedIn(photo, edge);
    if (made.isNull())
        made = readSmallCopy(photo, edge).image;
    if (made.isNull())
        return {};
    made = fittedInto(made, edge);
    if (isKept)
        cache->store(photo.path, changed, size, made);
    return made;
}

} // namespace halvern
