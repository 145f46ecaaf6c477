// SPDX-License-Identifier: MIT
#include "dialog/page/photo_opening.h"

#include "dialog/page/jpeg_data.h"
#include "dialog/page/photo_problem.h"
#include "dialog/page/picture.h"
#include "dialog/page/scaled_rows.h"
#include "dialog/photo/decoder_wire.h"
#include "platform/foundation/units.h"

#include <algorithm>

namespace halvern {

namespace {

std::unique_ptr<PictureRows> scaledTo(int edge, std::unique_ptr<PictureRows> rows)
{
    const QSize size = rows->picture().size;
    const QSize small = size.scaled(edge, edge, Qt::KeepAspectRatio).expandedTo({1, 1});
    if (small.width() >= size.width())
        return rows;
    return std::make_unique<ScaledRows>(std::move(rows), small);
}

std::optional<Photo> openJpeg(const QString& path)
{
    const FileStamp stamp = stampOf(path);
    const std::optional<JpegInfo> jpeg = readJpegInfo(path, true);
    if (!jpeg || !jpeg->isWhole || qint64(jpeg->size.width()) * jpeg->size.height() > kMostPixels)
        return std::nullopt;
    Photo photo;
    photo.path = path;
    photo.stamp = stamp;
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

SmallCopy readSmallCopy(const Photo& photo, int edge)
{
    SmallCopy copy;
    const double longer = std::max(photo.ownSize.width(), photo.ownSize.height());
    const int resolution = int(std::clamp(edge * kPointsPerInch / std::max(longer, 1.0), 1.0, 300.0));
    // Damage is to be told of as such, and not as a change of the file.
    Photo asItIs = photo;
    asItIs.printsDamaged = true;
    std::unique_ptr<PictureRows> rows = openPixels(asItIs, resolution, edge, &copy.problem);
    if (!rows)
        return copy;
    rows = scaledTo(edge, std::move(rows));
    const Picture picture = readPicture(*rows);
    copy.problem = picture.problem;
    copy.isDamaged = picture.isDamaged;
    if (!picture.image.isNull())
        copy.image = picture.image.convertToFormat(QImage::Format_RGB32);
    return copy;
}

} // namespace halvern
