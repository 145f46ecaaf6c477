// SPDX-License-Identifier: MIT
// The preview of a sheet with several photos.
#include "dialog/preview/preview_widget.h"

#include "dialog/page/caption.h"
#include "dialog/preview/screen_converter.h"
#include "dialog/preview/sheet_paint.h"
#include "dialog/preview/sheet_photos.h"
#include "platform/foundation/display_text.h"
#include "platform/maker/backprint_text.h"

#include <QPainter>
#include <QPainterPath>
#include <QtMath>

#include <algorithm>

namespace halvern {

namespace {

QSize pixelsOf(const PageLayout& layout, double scale)
{
    const QSizeF pixels = turnedSize(layout.photo.size(), layout.quarterTurns) * scale;
    return {qCeil(pixels.width()), qCeil(pixels.height())};
}

} // namespace

// A sheet's photos, each in the pixels that it is shown in.
void PreviewWidget::wantOthers()
{
    const bool isNeeded = page_.hasOthers() || !page_.sheet.caption.isEmpty();
    if (!isNeeded) {
        others_->want({}, 0, false);
        otherScreens_.clear();
        return;
    }
    const double scale = sheetRect().width() / page_.layout.page.width() * devicePixelRatioF();
    int edge = 0;
    for (const PlacedPhoto& placed : page_.sheet.sheet.photos) {
        const QSize pixels = pixelsOf(placed.layout, scale);
        edge = std::max({edge, pixels.width(), pixels.height()});
    }
    others_->want(page_.sheet.photos, page_.hasOthers() ? edge : 0, needsDetails(page_.sheet.caption));
    otherScreens_.resize(page_.sheet.photos.size());
    for (size_t i = 0; i < otherScreens_.size(); ++i) {
        otherScreens_[i].setPreview(others_->image(page_.sheet.photos[i]));
        otherScreens_[i].setLook(page_.look);
    }
    if (copy_.isNull() && page_.current < otherScreens_.size())
        screen_.setPreview(others_->image(page_.photo));
}

QStringList PreviewWidget::photoCaptions() const
{
    QStringList captions;
    for (size_t i = 0; i < page_.sheet.photos.size(); ++i) {
        const Photo& photo = page_.sheet.photos[i];
        captions.append(captionFor(page_.sheet.caption, photo.path, page_.sheet.sheet.photos[i].number,
                                   others_->details(photo).value_or(PhotoDetails())));
    }
    return captions;
}

// The painter is in points of the page; `scale` is a point in pixels of the screen.
void PreviewWidget::paintSheetsPhotos(QPainter& painter, double scale)
{
    paintOthers(painter, scale);
    const QImage& photo = screen_.whole(pixelsOf(page_.layout, scale));
    const QImage& shown = converter_->find({photo, {}}, page_.current).image;
    paintPhoto(painter, page_.layout, shown.isNull() ? photo : shown);
    paintMarks(painter, page_.sheet.sheet, photoCaptions());
}

void PreviewWidget::paintOthers(QPainter& painter, double scale)
{
    for (size_t i = 0; page_.hasOthers() && i < otherScreens_.size(); ++i) {
        const PageLayout& layout = page_.sheet.sheet.photos[i].layout;
        if (i == page_.current)
            continue;
        const QImage& image = otherScreens_[i].whole(pixelsOf(layout, scale));
        if (image.isNull())
            painter.fillRect(layout.visible(), QColor(225, 225, 225));
        else if (const QImage& shown = converter_->find({image, {}}, i).image; shown.isNull())
            paintPhoto(painter, layout, image);
        else
            paintPhoto(painter, layout, shown);
    }
}

// Where and how large the printer writes on the upright sheet.
void PreviewWidget::paintBack(QPainter& painter)
{
    const PageLayout& layout = page_.layout;
    const QRectF sheet = sheetRect();
    const double scale = sheet.width() / layout.page.width();
    paintShadow(painter, sheet);
    painter.fillRect(sheet, Qt::white);
    painter.save();
    painter.setClipRect(sheet);
    painter.translate(sheet.topLeft());
    painter.scale(scale, scale);
    painter.setTransform(layout.pageToSheet().inverted(), true);
    const double width = layout.turned ? layout.page.height() : layout.page.width();
    double top = backprint::kEdge;
    for (const QString& line : page_.back) {
        const double edge = backprint::kEdge * kPointsPerMillimetre;
        const QRectF room(edge, top * kPointsPerMillimetre, width - 2.0 * edge,
                          backprint::kLetterHeight * kPointsPerMillimetre);
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPixelSize(100);
        const double advance = QFontMetricsF(font).horizontalAdvance(displayText(line));
        // A line that is too long gets smaller letters.
        const double letters = std::min(room.height() / 100.0, room.width() / std::max(advance, 1.0));
        QPainterPath shapes;
        shapes.addText(0.0, QFontMetricsF(font).capHeight(), font, displayText(line));
        painter.fillPath(QTransform(letters, 0.0, 0.0, letters, room.left(), room.top()).map(shapes),
                         QColor(60, 60, 60));
        top += backprint::kLineHeight;
    }
    painter.restore();
}

std::optional<size_t> PreviewWidget::placeAt(const QPointF& position) const
{
    if (!hasPage_ || blank_ || !page_.hasOthers())
        return std::nullopt;
    const QRectF sheet = sheetRect();
    const QPointF at = (position - sheet.topLeft()) * (page_.layout.page.width() / sheet.width());
    const std::vector<PlacedPhoto>& photos = page_.sheet.sheet.photos;
    for (size_t i = 0; i < photos.size(); ++i) {
        if (photos[i].cell.contains(at))
            return i;
    }
    return std::nullopt;
}

} // namespace halvern
