// SPDX-License-Identifier: MIT
#include "dialog/photo/image_rows.h"

#include <QColorSpace>
#include <QPainter>

#include <algorithm>
#include <cstring>

namespace halvern {

namespace {

constexpr double kMetresPerInch = 0.0254;

PixelFormat formatFor(const QImage& image)
{
    if (image.format() == QImage::Format_Grayscale16)
        return PixelFormat::gray16;
    if (image.format() == QImage::Format_Grayscale8)
        return PixelFormat::gray8;
    return image.depth() > 32 ? PixelFormat::rgb16 : PixelFormat::rgb8;
}

QImage onWhite(const QImage& image, QImage::Format format)
{
    QImage opaque(image.size(), format);
    opaque.fill(Qt::white);
    QPainter painter(&opaque);
    painter.drawImage(0, 0, image);
    return opaque;
}

QImage::Format imageFormat(PixelFormat format)
{
    switch (format) {
    case PixelFormat::gray8:
        return QImage::Format_Grayscale8;
    case PixelFormat::gray16:
        return QImage::Format_Grayscale16;
    case PixelFormat::rgb8:
        return QImage::Format_RGB888;
    case PixelFormat::rgb16:
        return QImage::Format_RGBX64;
    case PixelFormat::cmyk8:
        break;
    }
    return QImage::Format_Invalid;
}

} // namespace

ImageRows::ImageRows(QImage image, bool isDamaged) : isDamaged_(isDamaged)
{
    picture_.size = picture_.fullSize = image.size();
    picture_.profile = image.colorSpace().iccProfile();
    picture_.dotsPerInch = image.dotsPerMeterX() * kMetresPerInch;
    picture_.format = formatFor(image);
    const QImage::Format plain = imageFormat(picture_.format);
    image_ = image.hasAlphaChannel() ? onWhite(image, plain) : std::move(image);
    image_.convertTo(plain);
}

int ImageRows::read(uchar* rows, int count)
{
    const int given = std::min(count, image_.height() - row_);
    for (int i = 0; i < given; ++i, ++row_)
        copyRow(rows + i * picture_.rowBytes());
    return given;
}

void ImageRows::copyRow(uchar* target) const
{
    if (picture_.format != PixelFormat::rgb16) {
        std::memcpy(target, image_.constScanLine(row_), size_t(picture_.rowBytes()));
        return;
    }
    const auto* source = reinterpret_cast<const quint16*>(image_.constScanLine(row_));
    auto* numbers = reinterpret_cast<quint16*>(target);
    for (int x = 0; x < image_.width(); ++x, source += 4, numbers += 3)
        std::copy_n(source, 3, numbers);
}

QImage imageOfRows(const StoredPicture& picture, const uchar* rows, int count)
{
    QImage image(picture.size.width(), count, imageFormat(picture.format));
    for (int y = 0; y < image.height(); ++y, rows += picture.rowBytes()) {
        if (picture.format != PixelFormat::rgb16) {
            std::memcpy(image.scanLine(y), rows, size_t(picture.rowBytes()));
            continue;
        }
        const auto* numbers = reinterpret_cast<const quint16*>(rows);
        auto* target = reinterpret_cast<quint16*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x, numbers += 3, target += 4) {
            std::copy_n(numbers, 3, target);
            target[3] = 0xFFFF;
        }
    }
    return image;
}

} // namespace halvern
