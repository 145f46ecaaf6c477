// SPDX-License-Identifier: MIT
#include "dialog/page/picture.h"

#include "dialog/page/jpeg_decoder.h"
#include "dialog/page/photo_problem.h"
#include "dialog/page/srgb.h"
#include "dialog/page/tiff_pages.h"

#include <QBuffer>
#include <QColorSpace>
#include <QFile>
#include <QImageReader>

namespace halvern {

namespace {

constexpr qint64 kLargestJpeg = 512LL * 1024 * 1024;
constexpr int kAllocationMegabytes = 2048; // 100 megapixels at 16 bits a channel, and a copy
constexpr qint64 kMostPixels = 400'000'000;
constexpr double kMetresPerInch = 0.0254;

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

Picture failed(const QString& problem)
{
    Picture picture;
    picture.problem = problem;
    return picture;
}

Picture readJpeg(const QString& path, const QByteArray& bytes, int leastEdge)
{
    JpegDecoder decoder(bytes);
    if (!decoder.header())
        return failed(photoProblem(PhotoFault::damaged, path));
    const JpegHeader& header = *decoder.header();
    if (isTooLarge(header.size))
        return failed(photoProblem(PhotoFault::tooLarge, path));
    const QImage image = decoder.read(leastEdge);
    if (image.isNull())
        return failed(photoProblem(PhotoFault::damaged, path));
    const Orientation how = jpegOrientation(bytes);
    return {uprightImage(image, how), how.upright(header.size), header.dotsPerInch, decoder.isDamaged(), {}};
}

Picture readWithQt(const QString& path, int page)
{
    silenceTiffLibrary();
    QImageReader::setAllocationLimit(kAllocationMegabytes);
    QImageReader reader(path);
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    if (page > 0)
        reader.jumpToImage(page);
    if (isTooLarge(reader.size()))
        return failed(photoProblem(PhotoFault::tooLarge, path));
    QImage image = reader.read();
    if (image.isNull()) {
        const bool isPicture = reader.canRead() || reader.error() == QImageReader::InvalidDataError;
        return failed(photoProblem(isPicture ? PhotoFault::damaged : PhotoFault::noPicture, path));
    }
    const double dotsPerInch = image.dotsPerMeterX() * kMetresPerInch;
    const QByteArray profile = image.colorSpace().iccProfile();
    const bool isDamaged = looksLikeTiff(path) && !isTiffPageWhole(path, page);
    const QSize pixels = image.size();
    return {inSrgb(std::move(image), profile), pixels, dotsPerInch, isDamaged, {}};
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

Picture readPicture(const QString& path, int page, int leastEdge)
{
    if (!looksLikeJpeg(path))
        return readWithQt(path, page);
    const QByteArray bytes = jpegBytes(path);
    return bytes.isEmpty() ? failed(photoProblem(PhotoFault::tooLarge, path))
                           : readJpeg(path, bytes, leastEdge);
}

QByteArray jpegBytes(const QString& path)
{
    QFile file(path);
    const bool isReadable = looksLikeJpeg(path) && file.open(QIODevice::ReadOnly);
    return isReadable && file.size() <= kLargestJpeg ? file.readAll() : QByteArray();
}

} // namespace halvern
