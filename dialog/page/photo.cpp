// SPDX-License-Identifier: MIT
#include "dialog/page/photo.h"

#include "dialog/page/photo_problem.h"
#include "dialog/page/picture.h"
#include "platform/foundation/units.h"

#include <QDateTime>
#include <QFileInfo>

#include <algorithm>

namespace halvern {

namespace {

constexpr double kAssumedResolution = 300.0;
constexpr double kLeastBelievedResolution = 100.0;
constexpr int kPagesOfADecoder = 8; // its time is limited, and a long document is not made to do harm

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

/// The pages of a file, and what is wrong with the first one that cannot be read.
struct ReadPages {
    std::vector<Photo> pages;
    PhotoFault fault = PhotoFault::none;
};

ReadPages readPages(const QString& path)
{
    ReadPages result;
    auto file = std::make_shared<PhotoDecoder>(path);
    const OpenAnswer opened = file->file();
    result.fault = opened.fault;
    for (qsizetype i = 0; i < opened.pages.size(); ++i) {
        if (i > 0 && i % kPagesOfADecoder == 0)
            file = std::make_shared<PhotoDecoder>(path);
        const qint32 page = opened.pages[i];
        QString problem;
        const auto rows = openPicture(file, path, {page, kPreviewEdge, 0}, PhotoFault::none, &problem);
        const Picture picture = rows ? readPicture(*rows) : Picture();
        if (!picture.image.isNull()) {
            result.pages.push_back(photoOf(path, page, *file, file->picture(), picture));
            if (result.pages.size() > kKeptPreviews)
                result.pages.back().preview = QImage();
        } else if (result.fault == PhotoFault::none) {
            result.fault = file->fault() != PhotoFault::none ? file->fault() : PhotoFault::tooLarge;
        }
        if (file->isOver())
            break;
    }
    if (result.fault == PhotoFault::none && opened.isCutOff)
        result.fault = PhotoFault::partMissing;
    return result;
}

// What to say of a file some of whose pages are there.
PhotoFault faultOfSome(const ReadPages& read)
{
    if (read.fault == PhotoFault::damaged)
        return PhotoFault::partMissing;
    const bool isDamaged =
        std::any_of(read.pages.begin(), read.pages.end(), [](const Photo& photo) { return photo.isDamaged; });
    return read.fault == PhotoFault::none && isDamaged ? PhotoFault::partMissing : read.fault;
}

} // namespace

// Cameras and scanners write a resolution; a plain 72 or 96 is what programs write that know none.
QSizeF ownSizeInPoints(const QSize& pixels, double dotsPerInch)
{
    const double dpi = dotsPerInch > kLeastBelievedResolution ? dotsPerInch : kAssumedResolution;
    return QSizeF(pixels) * (kPointsPerInch / dpi);
}

FileStamp stampOf(const QString& path)
{
    const QFileInfo file(path);
    return file.exists() ? FileStamp{file.size(), file.lastModified().toMSecsSinceEpoch()} : FileStamp();
}

PhotoKey keyOf(const Photo& photo)
{
    return {photo.path, photo.page, photo.stamp};
}

bool hasChanged(const Photo& photo)
{
    return photo.stamp != FileStamp() && photo.stamp != stampOf(photo.path);
}

PhotoFile readPhotoFile(const QString& path)
{
    PhotoFile file;
    file.problem = fileProblem(path);
    if (!file.problem.isEmpty())
        return file;
    const FileStamp stamp = stampOf(path);
    const ReadPages read = readPages(path);
    file.pages = read.pages;
    for (size_t i = 0; i < file.pages.size(); ++i) {
        file.pages[i].stamp = stamp;
        file.pages[i].pagesInFile = int(file.pages.size());
        file.pages[i].pageNumber = file.pages.size() > 1 ? int(i) + 1 : 0;
    }
    const PhotoFault fault = file.pages.empty() ? read.fault : faultOfSome(read);
    if (fault != PhotoFault::none)
        file.problem = photoProblem(fault, path);
    return file;
}

std::unique_ptr<PictureRows> openPixels(const Photo& photo, int resolution, int leastEdge, QString* problem)
{
    *problem = fileProblem(photo.path);
    // What was laid out and shown is another picture: it would be stretched, or cut elsewhere.
    if (problem->isEmpty() && hasChanged(photo))
        *problem = photoProblem(PhotoFault::changed, photo.path);
    if (!problem->isEmpty())
        return nullptr;
    const auto file = std::make_shared<PhotoDecoder>(photo.path);
    const ReadRequest request{photo.page, photo.isPdf ? 0 : leastEdge, photo.isPdf ? resolution : 0};
    const bool isAgreed = photo.isDamaged || photo.printsDamaged;
    return openPicture(file, photo.path, request, isAgreed ? PhotoFault::none : PhotoFault::partMissing,
                       problem);
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
