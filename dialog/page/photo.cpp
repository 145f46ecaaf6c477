// SPDX-License-Identifier: MIT
#include "dialog/page/photo.h"

#include "dialog/page/photo_problem.h"
#include "dialog/page/picture.h"
#include "dialog/photo/image_rows.h"
#include "platform/foundation/units.h"

#include <QFile>

#include <poppler-qt6.h>

#include <algorithm>

namespace halvern {

namespace {

constexpr double kAssumedResolution = 300.0;
constexpr double kLeastBelievedResolution = 100.0;
constexpr int kPdfSignatureRange = 1024; // both at the start and at the end

QImage smallCopy(const QImage& image)
{
    const QSize bounds(kPreviewEdge, kPreviewEdge);
    QImage copy = image;
    if (image.width() > kPreviewEdge || image.height() > kPreviewEdge)
        copy = image.scaled(bounds, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return copy.convertToFormat(copy.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                       : QImage::Format_RGB32);
}

bool looksLikePdf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(kPdfSignatureRange).contains("%PDF-");
}

// What is missing at the end is invisible in the pages that are left.
bool isCutOff(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) &&
           file.seek(std::max(file.size() - kPdfSignatureRange, qint64(0))) &&
           !file.readAll().contains("%%EOF");
}

std::unique_ptr<Poppler::Document> openPdf(const QString& path, QString* problem)
{
    // Otherwise it would write its complaints to the terminal.
    Poppler::setDebugErrorFunction([](const QString&, const QVariant&) {}, {});
    std::unique_ptr<Poppler::Document> document = Poppler::Document::load(path);
    if (!document || document->numPages() < 1) {
        *problem = photoProblem(PhotoFault::damaged, path);
        return nullptr;
    }
    if (document->isLocked()) {
        *problem = photoProblem(PhotoFault::locked, path);
        return nullptr;
    }
    document->setRenderHint(Poppler::Document::Antialiasing);
    document->setRenderHint(Poppler::Document::TextAntialiasing);
    return document;
}

PhotoFile readPdf(const QString& path)
{
    PhotoFile file;
    const auto document = openPdf(path, &file.problem);
    const bool isDamaged = isCutOff(path);
    for (int i = 0; document && i < document->numPages(); ++i) {
        const std::unique_ptr<Poppler::Page> page = document->page(i);
        if (!page)
            continue;
        Photo photo{path, i, true, {}, page->pageSizeF(), {}, isDamaged};
        const double longer = std::max(photo.ownSize.width(), photo.ownSize.height());
        const double resolution =
            std::clamp(kPreviewEdge * kPointsPerInch / std::max(longer, 1.0), 1.0, 300.0);
        photo.preview = page->renderToImage(resolution, resolution).convertToFormat(QImage::Format_RGB32);
        file.pages.push_back(std::move(photo));
    }
    return file;
}

PhotoFile readPictures(const QString& path)
{
    PhotoFile file;
    for (const int page : picturesIn(path)) {
        const Picture picture = readPicture(path, page, kPreviewEdge);
        if (picture.image.isNull()) {
            file.problem = picture.problem;
            continue;
        }
        file.pages.push_back({path, page, false, picture.pixels,
                              ownSizeInPoints(picture.pixels, picture.dotsPerInch), smallCopy(picture.image),
                              picture.isDamaged});
    }
    return file;
}

/// A photo's rows, which are no longer what was seen if they turn out to be damaged only now.
class SeenRows : public PictureRows {
public:
    SeenRows(std::unique_ptr<PictureRows> rows, const Photo& photo)
        : rows_(std::move(rows)), path_(photo.path), wasDamaged_(photo.isDamaged)
    {
    }

    const StoredPicture& picture() const override { return rows_->picture(); }

    int read(uchar* rows, int count) override
    {
        const int given = rows_->read(rows, count);
        rowsLeft_ -= given;
        return given;
    }

    QString problem() const override
    {
        const bool hasChanged = rowsLeft_ == 0 && isDamaged() && !wasDamaged_;
        return hasChanged ? photoProblem(PhotoFault::changed, path_) : rows_->problem();
    }

    bool isDamaged() const override { return rows_->isDamaged(); }

private:
    std::unique_ptr<PictureRows> rows_;
    QString path_;
    bool wasDamaged_;
    int rowsLeft_ = rows_->picture().size.height();
};

QImage drawPdfPage(const Photo& photo, int resolution, QString* problem)
{
    const auto document = openPdf(photo.path, problem);
    const std::unique_ptr<Poppler::Page> page = document ? document->page(photo.page) : nullptr;
    if (document && !page)
        *problem = photoProblem(PhotoFault::changed, photo.path);
    return page ? page->renderToImage(resolution, resolution) : QImage();
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
    file = looksLikePdf(path) ? readPdf(path) : readPictures(path);
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
    if (photo.isPdf) {
        const QImage page = drawPdfPage(photo, resolution, problem);
        return page.isNull() ? nullptr : std::make_unique<ImageRows>(page, photo.isDamaged);
    }
    std::unique_ptr<PictureRows> rows = openPicture(photo.path, photo.page, leastEdge, problem);
    return rows ? std::make_unique<SeenRows>(std::move(rows), photo) : nullptr;
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
