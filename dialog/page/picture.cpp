// SPDX-License-Identifier: MIT
#include "dialog/page/picture.h"

#include "dialog/page/colour_transform.h"
#include "dialog/page/photo_problem.h"

#include <QTransform>

#include <algorithm>

namespace halvern {

namespace {

constexpr int kStripRows = 32;

class FileRows : public PictureRows {
public:
    FileRows(std::shared_ptr<PhotoDecoder> file, QString path, StoredPicture picture, PhotoFault whenDamaged)
        : file_(std::move(file)),
          path_(std::move(path)),
          picture_(std::move(picture)),
          whenDamaged_(whenDamaged)
    {
    }

    const StoredPicture& picture() const override { return picture_; }

    int read(uchar* rows, int count) override
    {
        const int given = file_->read(rows, count);
        rowsLeft_ -= given;
        return given;
    }

    QString problem() const override
    {
        if (file_->fault() != PhotoFault::none)
            return photoProblem(file_->fault(), path_);
        const bool isNews = rowsLeft_ == 0 && whenDamaged_ != PhotoFault::none && file_->isDamaged();
        return isNews ? photoProblem(whenDamaged_, path_) : QString();
    }

    bool isDamaged() const override { return file_->isDamaged(); }

private:
    std::shared_ptr<PhotoDecoder> file_;
    QString path_;
    StoredPicture picture_;
    PhotoFault whenDamaged_;
    int rowsLeft_ = picture_.size.height();
};

QImage uprightImage(const QImage& stored, const Orientation& how)
{
    const QImage image = how.isMirrored ? stored.mirrored(true, false) : stored;
    return how.quarterTurns == 0 ? image : image.transformed(QTransform().rotate(90.0 * how.quarterTurns));
}

// The stored picture, in sRGB; null if its rows cannot be read.
QImage imageInSrgb(PictureRows& rows)
{
    const StoredPicture& picture = rows.picture();
    const ColourTransform colours(picture, {});
    const bool isPlain = colours.changesNothing();
    QImage image(picture.size, colours.channels() == 1 ? QImage::Format_Grayscale8 : QImage::Format_RGB888);
    QByteArray strip(kStripRows * picture.rowBytes(), Qt::Uninitialized);
    auto* numbers = reinterpret_cast<uchar*>(strip.data());
    for (int y = 0; y < image.height();) {
        const int count = rows.read(numbers, std::min(kStripRows, image.height() - y));
        if (count == 0)
            return {};
        for (int i = 0; i < count; ++i, ++y) {
            const uchar* row = numbers + i * picture.rowBytes();
            if (isPlain)
                std::copy_n(row, picture.rowBytes(), image.scanLine(y));
            else
                colours.convert(row, image.scanLine(y), image.width());
        }
    }
    return image;
}

} // namespace

std::unique_ptr<PictureRows> openPicture(const std::shared_ptr<PhotoDecoder>& file, const QString& path,
                                         const ReadRequest& request, PhotoFault whenDamaged, QString* problem)
{
    const PictureAnswer& answer = file->begin(request);
    if (answer.fault != PhotoFault::none) {
        *problem = photoProblem(answer.fault, path);
        return nullptr;
    }
    return std::make_unique<FileRows>(file, path, answer.picture, whenDamaged);
}

Picture readPicture(PictureRows& rows)
{
    Picture result;
    const StoredPicture& picture = rows.picture();
    const QImage stored = imageInSrgb(rows);
    result.problem = rows.problem();
    if (!result.problem.isEmpty() || stored.isNull())
        return result;
    result.image = uprightImage(stored, picture.orientation);
    result.pixels = picture.orientation.upright(picture.fullSize);
    result.dotsPerInch = picture.dotsPerInch;
    result.isDamaged = rows.isDamaged();
    return result;
}

} // namespace halvern
