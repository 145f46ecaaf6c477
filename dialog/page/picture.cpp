// SPDX-License-Identifier: MIT
#include "dialog/page/picture.h"

#include "dialog/page/colour_transform.h"
#include "dialog/page/jpeg_decoder.h"
#include "dialog/page/photo_problem.h"
#include "dialog/page/tiff_pages.h"
#include "dialog/photo/image_rows.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>

#include <algorithm>
#include <cstring>

namespace halvern {

namespace {

constexpr qint64 kLargestJpeg = 512LL * 1024 * 1024;
constexpr int kAllocationMegabytes = 2048; // 100 megapixels at 16 bits a channel, and a copy
constexpr qint64 kMostPixels = 400'000'000;

bool looksLikeJpeg(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(3) == "\xFF\xD8\xFF";
}

bool isTooLarge(const QSize& size)
{
    return qint64(size.width()) * size.height() > kMostPixels;
}

Orientation orientation(QImageIOHandler::Transformations turn)
{
    Orientation found;
    found.isMirrored = turn.testFlag(QImageIOHandler::TransformationMirror);
    found.quarterTurns = turn.testFlag(QImageIOHandler::TransformationRotate90) ? 1 : 0;
    if (turn.testFlag(QImageIOHandler::TransformationFlip)) {
        // Upside down is a half turn and a mirror.
        found.isMirrored = !found.isMirrored;
        found.quarterTurns += 2;
    }
    return found;
}

QImage uprightImage(const QImage& stored, const Orientation& how)
{
    const QImage image = how.isMirrored ? stored.mirrored(true, false) : stored;
    return how.quarterTurns == 0 ? image : image.transformed(QTransform().rotate(90.0 * how.quarterTurns));
}

class JpegRows : public PictureRows {
public:
    JpegRows(QString path, const QByteArray& bytes) : path_(std::move(path)), decoder_(bytes)
    {
        picture_.orientation = jpegOrientation(bytes);
    }

    /// The sentence about what is wrong; empty if nothing is.
    QString open(int leastEdge)
    {
        if (!decoder_.header())
            return photoProblem(PhotoFault::damaged, path_);
        const JpegHeader& header = *decoder_.header();
        if (isTooLarge(header.size))
            return photoProblem(PhotoFault::tooLarge, path_);
        picture_.size = decoder_.start(leastEdge);
        if (picture_.size.isEmpty())
            return photoProblem(PhotoFault::damaged, path_);
        picture_.fullSize = header.size;
        picture_.format = header.components == 4   ? PixelFormat::cmyk8
                          : header.components == 1 ? PixelFormat::gray8
                                                   : PixelFormat::rgb8;
        picture_.profile = header.profile;
        picture_.dotsPerInch = header.dotsPerInch;
        return {};
    }

    const StoredPicture& picture() const override { return picture_; }

    int read(uchar* rows, int count) override
    {
        int done = 0;
        while (done < count && row_ < picture_.size.height() && problem_.isEmpty()) {
            if (decoder_.readRow(rows + done * picture_.rowBytes())) {
                ++done;
                ++row_;
            } else {
                problem_ = photoProblem(PhotoFault::damaged, path_);
            }
        }
        return done;
    }

    QString problem() const override { return problem_; }

    bool isDamaged() const override { return decoder_.isDamaged(); }

private:
    QString path_;
    JpegDecoder decoder_;
    StoredPicture picture_;
    QString problem_;
    int row_ = 0;
};

std::unique_ptr<PictureRows> openWithQt(const QString& path, int page, QString* problem)
{
    silenceTiffLibrary();
    QImageReader::setAllocationLimit(kAllocationMegabytes);
    QImageReader reader(path);
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    if (page > 0)
        reader.jumpToImage(page);
    if (isTooLarge(reader.size())) {
        *problem = photoProblem(PhotoFault::tooLarge, path);
        return nullptr;
    }
    QImage image = reader.read();
    if (image.isNull()) {
        const bool isPicture = reader.canRead() || reader.error() == QImageReader::InvalidDataError;
        *problem = photoProblem(isPicture ? PhotoFault::damaged : PhotoFault::noPicture, path);
        return nullptr;
    }
    return std::make_unique<ImageRows>(std::move(image), looksLikeTiff(path) && !isTiffPageWhole(path, page));
}

} // namespace

Orientation jpegOrientation(const QByteArray& bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    return orientation(QImageReader(&buffer, "jpeg").transformation());
}

std::vector<int> picturesIn(const QString& path)
{
    return looksLikeTiff(path) ? tiffPages(path) : std::vector<int>{0};
}

std::unique_ptr<PictureRows> openPicture(const QString& path, int page, int leastEdge, QString* problem)
{
    if (!looksLikeJpeg(path))
        return openWithQt(path, page, problem);
    const QByteArray bytes = jpegBytes(path);
    if (bytes.isEmpty()) {
        *problem = photoProblem(PhotoFault::tooLarge, path);
        return nullptr;
    }
    auto rows = std::make_unique<JpegRows>(path, bytes);
    *problem = rows->open(leastEdge);
    return problem->isEmpty() ? std::move(rows) : nullptr;
}

Picture readPicture(PictureRows& rows)
{
    Picture result;
    const StoredPicture& picture = rows.picture();
    const QByteArray bytes = readAllRows(rows);
    result.problem = rows.problem();
    if (!result.problem.isEmpty())
        return result;
    result.image = uprightImage(
        imageInSrgb(picture, reinterpret_cast<const uchar*>(bytes.constData()), picture.size.height()),
        picture.orientation);
    result.pixels = picture.orientation.upright(picture.fullSize);
    result.dotsPerInch = picture.dotsPerInch;
    result.isDamaged = rows.isDamaged();
    return result;
}

Picture readPicture(const QString& path, int page, int leastEdge)
{
    Picture result;
    const std::unique_ptr<PictureRows> rows = openPicture(path, page, leastEdge, &result.problem);
    return rows ? readPicture(*rows) : result;
}

QByteArray jpegBytes(const QString& path)
{
    QFile file(path);
    const bool isReadable = looksLikeJpeg(path) && file.open(QIODevice::ReadOnly);
    return isReadable && file.size() <= kLargestJpeg ? file.readAll() : QByteArray();
}

} // namespace halvern
