// SPDX-License-Identifier: MIT
#include "dialog/decode/image_source.h"

#include "platform/foundation/units.h"

#include <QColorSpace>

#include <algorithm>
#include <cstring>

namespace halvern {

namespace {

// The format in which the rows are kept, whose numbers are the ones handed over, but for the paper.
QImage::Format keptFormat(PixelFormat format, bool hasAlpha)
{
    switch (format) {
    case PixelFormat::gray8:
        return QImage::Format_Grayscale8;
    case PixelFormat::gray16:
        return QImage::Format_Grayscale16;
    case PixelFormat::rgb16:
        return hasAlpha ? QImage::Format_RGBA64 : QImage::Format_RGBX64;
    default:
        return hasAlpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888;
    }
}

void takeColors(const QRgb* pixel, uchar* row, int width)
{
    for (int x = 0; x < width; ++x, ++pixel, row += 3) {
        row[0] = uchar(qRed(*pixel));
        row[1] = uchar(qGreen(*pixel));
        row[2] = uchar(qBlue(*pixel));
    }
}

PixelFormat formatFor(const QImage& image)
{
    if (image.format() == QImage::Format_Grayscale16)
        return PixelFormat::gray16;
    if (image.format() == QImage::Format_Grayscale8)
        return PixelFormat::gray8;
    return image.depth() > 32 ? PixelFormat::rgb16 : PixelFormat::rgb8;
}

} // namespace

ImageSource::ImageSource(QImage image, bool isDamaged, const QSizeF& ownSize)
    : image_(std::move(image)), isDamaged_(isDamaged)
{
    ownSize_ = ownSize;
    checkSize(image_.width(), image_.height());
    picture_.size = picture_.fullSize = image_.size();
    picture_.profile = image_.colorSpace().iccProfile();
    picture_.dotsPerInch = image_.dotsPerMeterX() * kMetresPerInch;
    picture_.format = formatFor(image_);
    // A page of a document is as it is: there may be no room for another one beside it.
    if (image_.format() != QImage::Format_RGB32)
        image_.convertTo(keptFormat(picture_.format, image_.hasAlphaChannel()));
    if (image_.isNull())
        throw Unreadable{PhotoFault::tooLarge};
}

bool ImageSource::readRow(uchar* row)
{
    const uchar* line = image_.constScanLine(row_++);
    const auto* numbers = reinterpret_cast<const quint16*>(line);
    auto* target = reinterpret_cast<quint16*>(row);
    switch (image_.format()) {
    case QImage::Format_RGB32:
        takeColors(reinterpret_cast<const QRgb*>(line), row, image_.width());
        break;
    case QImage::Format_RGBA8888:
        layOnWhite(line, row, image_.width(), 3);
        break;
    case QImage::Format_RGBA64:
        layOnWhite(numbers, target, image_.width(), 3);
        break;
    case QImage::Format_RGBX64:
        for (int x = 0; x < image_.width(); ++x, numbers += 4, target += 3)
            std::copy_n(numbers, 3, target);
        break;
    default:
        std::memcpy(row, line, size_t(picture_.rowBytes()));
        break;
    }
    return true;
}

} // namespace halvern
