// SPDX-License-Identifier: MIT
#include "dialog/page/photo_opening.h"

#include "dialog/page/colour_transform.h"
#include "dialog/page/jpeg_data.h"
#include "dialog/page/photo_problem.h"
#include "dialog/page/scaled_rows.h"
#include "platform/foundation/units.h"

#include <QTransform>

#include <algorithm>
#include <vector>

namespace halvern {

namespace {

constexpr qint64 kMostPixels = 400'000'000;
constexpr int kStripRows = 32;

std::unique_ptr<PictureRows> scaledToPreview(std::unique_ptr<PictureRows> rows)
{
    const QSize size = rows->picture().size;
    const QSize small = size.scaled(kPreviewEdge, kPreviewEdge, Qt::KeepAspectRatio).expandedTo({1, 1});
    if (small.width() >= size.width())
        return rows;
    return std::make_unique<ScaledRows>(std::move(rows), small);
}

QImage turned(const QImage& stored, const Orientation& how)
{
    const QImage image = how.isMirrored ? stored.mirrored(true, false) : stored;
    return how.quarterTurns == 0 ? image : image.transformed(QTransform().rotate(90.0 * how.quarterTurns));
}

// All rows in sRGB, not yet turned; fewer, if they cannot be read.
QImage readImage(PictureRows& rows)
{
    const StoredPicture& picture = rows.picture();
    const ColourTransform colours(picture, {});
    QImage image(picture.size, colours.channels() == 1 ? QImage::Format_Grayscale8 : QImage::Format_RGB888);
    std::vector<uchar> strip(size_t(kStripRows * picture.rowBytes()));
    for (int y = 0; y < image.height();) {
        const int count = rows.read(strip.data(), std::min(kStripRows, image.height() - y));
        if (count == 0)
            return {};
        for (int i = 0; i < count; ++i, ++y)
            colours.convert(strip.data() + i * picture.rowBytes(), image.scanLine(y), image.width());
    }
    return image;
}

std::optional<Photo> openJpeg(const QString& path)
{
    const std::optional<JpegInfo> jpeg = readJpegInfo(path, true);
    if (!jpeg || !jpeg->isWhole || qint64(jpeg->size.width()) * jpeg->size.height() > kMostPixels)
        return std::nullopt;
    Photo photo;
    photo.path = path;
    photo.pixels = jpeg->orientation.upright(jpeg->size);
    photo.ownSize = ownSizeInPoints(photo.pixels, jpeg->dotsPerInch);
    return photo;
}

} // namespace

PhotoFile openPhotoFile(const QString& path)
{
    if (!fileProblem(path).isEmpty())
        return readPhotoFile(path);
    const std::optional<Photo> jpeg = openJpeg(path);
    return jpeg ? PhotoFile{{*jpeg}, {}} : readPhotoFile(path);
}

SmallCopy readSmallCopy(const Photo& photo)
{
    SmallCopy copy;
    const double longer = std::max(photo.ownSize.width(), photo.ownSize.height());
    const int resolution = int(std::clamp(kPreviewEdge * kPointsPerInch / std::max(longer, 1.0), 1.0, 300.0));
    // Damage is to be told of as such, and not as a change of the file.
    Photo asItIs = photo;
    asItIs.isDamaged = true;
    std::unique_ptr<PictureRows> rows = openPixels(asItIs, resolution, kPreviewEdge, &copy.problem);
    if (!rows)
        return copy;
    rows = scaledToPreview(std::move(rows));
    const QImage image = readImage(*rows);
    copy.problem = rows->problem();
    copy.isDamaged = rows->isDamaged();
    if (!image.isNull())
        copy.image = turned(image, rows->picture().orientation).convertToFormat(QImage::Format_RGB32);
    return copy;
}

} // namespace halvern
