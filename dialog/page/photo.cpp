// SPDX-License-Identifier: MIT
#include "dialog/page/photo.h"

#include "dialog/page/photo_problem.h"
#include "dialog/page/picture.h"
#include "platform/foundation/units.h"

#include <algorithm>

namespace halvern {

namespace {

constexpr double kAssumedResolution = 300.0;
constexpr double kLeastBelievedResolution = 100.0;

QImage smallCopy(const QImage& image)
{
    const QSize bounds(kPreviewEdge, kPreviewEdge);
    QImage copy = image;
    if (image.width() > kPreviewEdge || image.height() > kPreviewEdge)
        copy = image.scaled(bounds, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return copy.convertToFormat(copy.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                       : QImage::Format_RGB32);
}

Photo photoOf(const QString& path, qint32 page, const PhotoDecoder& file, const PictureAnswer& answer,
              const Picture& picture)
{
    Photo photo;
    photo.path = path;
    photo.page = page;
    photo.isPdf = file.file().isPdf;
    photo.pixels = photo.isPdf ? QSize() : picture.pixels;
    photo.ownSize = photo.isPdf ? answer.ownSize : ownSizeInPoints(picture.pixels, picture.dotsPerInch);
    photo.preview = smallCopy(picture.image);
    photo.isDamaged = picture.isDamaged;
    return photo;
}

PhotoFile readPages(const QString& path)
{
    PhotoFile result;
    const auto file = std::make_shared<PhotoDecoder>(path);
    if (file->file().fault != PhotoFault::none)
        result.problem = photoProblem(file->file().fault, path);
    for (const qint32 page : file->file().pages) {
        const std::unique_ptr<PictureRows> rows =
            openPicture(file, path, {page, kPreviewEdge, 0}, false, &result.problem);
        if (!rows) {
            if (file->isOver())
                break;
            continue;
        }
        const Picture picture = readPicture(*rows);
        if (picture.image.isNull())
            result.problem = picture.problem;
        else
            result.pages.push_back(photoOf(path, page, *file, file->picture(), picture));
    }
    return result;
}

} // namespace

// Cameras and scanners write a resolution; a plain 72 or 96 is what programs write that know none.
QSizeF ownSizeInPoints(const QSize& pixels, double dotsPerInch)
{
    const double dpi = dotsPerInch > kLeastBelievedResolution ? dotsPerInch : kAssumedResolution;
    return QSizeF(pixels) * (kPointsPerInch / dpi);
}

PhotoFile readPhotoFile(const QString& path)
{
    PhotoFile file;
    file.problem = fileProblem(path);
    if (!file.problem.isEmpty())
        return file;
    file = readPages(path);
    for (size_t i = 0; file.pages.size() > 1 && i < file.pages.size(); ++i)
        file.pages[i].pageNumber = int(i) + 1;
    const bool isDamaged =
        std::any_of(file.pages.begin(), file.pages.end(), [](const Photo& photo) { return photo.isDamaged; });
    // One page of several that cannot be read at all is a part that is missing, too.
    if (isDamaged || (!file.pages.empty() && !file.problem.isEmpty()))
        file.problem = photoProblem(PhotoFault::partMissing, path);
    return file;
}

std::unique_ptr<PictureRows> openPixels(const Photo& photo, int resolution, int leastEdge, QString* problem)
{
    *problem = fileProblem(photo.path);
    if (!problem->isEmpty())
        return nullptr;
    const auto file = std::make_shared<PhotoDecoder>(photo.path);
    const ReadRequest request{photo.page, photo.isPdf ? 0 : leastEdge, photo.isPdf ? resolution : 0};
    return openPicture(file, photo.path, request, !photo.isDamaged, problem);
}

QImage readPixels(const Photo& photo, int resolution, QString* problem)
{
    const std::unique_ptr<PictureRows> rows = openPixels(photo, resolution, 0, problem);
    if (!rows)
        return {};
    const Picture picture = readPicture(*rows);
    *problem = picture.problem;
    return picture.image;
}

} // namespace halvern
