// SPDX-License-Identifier: MIT
#include "dialog/preview/screen_photo.h"

#include <QPainter>

namespace halvern {

namespace {

// The sharpening's greatest radius: without these pixels a window's border would be sharpened wrongly.
constexpr int kReach = 10;

QImage scaledDown(const QImage& image, const QSize& pixels)
{
    if (image.width() <= pixels.width() || image.height() <= pixels.height() || pixels.isEmpty())
        return image;
    return image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage coloured(const QImage& image, const Look& look)
{
    const QImage adjusted = adjust::adjusted(image, look.colors);
    return look.isGray ? adjust::grayed(adjusted) : adjusted;
}

} // namespace

void ScreenPhoto::setPreview(const QImage& preview)
{
    preview_ = preview;
}

const QImage& ScreenPhoto::whole(const QSize& pixels)
{
    if (whole_.source != preview_.cacheKey() || whole_.size != pixels)
        whole_ = {preview_.cacheKey(), pixels, {}, scaledDown(preview_, pixels)};
    const qint64 source = whole_.image.cacheKey();
    if (adjustedWhole_.source != source || adjustedWhole_.look.colors != look_.colors ||
        adjustedWhole_.look.isGray != look_.isGray)
        adjustedWhole_ = {source, look_, coloured(whole_.image, look_)};
    return adjustedWhole_.image;
}

void ScreenPhoto::cutOut(const QSize& size, const QRect& window)
{
    const QImage& source = detail_.isNull() ? preview_ : detail_;
    if (part_.source == source.cacheKey() && part_.size == size && part_.window == window)
        return;
    roomAround_ = window.adjusted(-kReach, -kReach, kReach, kReach).intersected(QRect(QPoint(), size));
    part_ = {source.cacheKey(), size, window, {}};
    if (source.isNull() || roomAround_.isEmpty())
        return;
    if (source.size() == size) {
        part_.image = source.copy(roomAround_);
        return;
    }
    const double x = double(source.width()) / size.width();
    const double y = double(source.height()) / size.height();
    part_.image = QImage(roomAround_.size(), source.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                                      : QImage::Format_RGB32);
    part_.image.fill(Qt::transparent);
    QPainter painter(&part_.image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(
        QRectF(QPointF(), roomAround_.size()), source,
        QRectF(roomAround_.x() * x, roomAround_.y() * y, roomAround_.width() * x, roomAround_.height() * y));
}

const QImage& ScreenPhoto::part(const QSize& size, const QRect& window)
{
    cutOut(size, window);
    const qint64 source = part_.image.cacheKey();
    if (finishedPart_.source != source || finishedPart_.look != look_) {
        const QImage adjusted = coloured(part_.image, look_);
        const QRect inner = window.translated(-roomAround_.topLeft());
        finishedPart_ = {source, look_, adjust::sharpened(adjusted, look_.sharpening).copy(inner)};
    }
    return finishedPart_.image;
}

} // namespace halvern
