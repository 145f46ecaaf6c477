// SPDX-License-Identifier: MIT
#include "dialog/preview/sheet_paint.h"

#include "dialog/preview/preview_widget.h"
#include "platform/foundation/display_text.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace halvern {

namespace {

constexpr int kShadow = 7;
constexpr double kBackOffset = 0.07; // of the sheet's shorter edge
const QColor kInk(70, 70, 70);
const QColor kPaleInk(120, 120, 120);

} // namespace

QColor neutralGround(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < 128 ? QColor(38, 38, 38) : QColor(205, 205, 205);
}

QColor inkOn(const QColor& background)
{
    return background.lightness() < 128 ? QColor(200, 200, 200) : QColor(60, 60, 60);
}

void paintShadow(QPainter& painter, const QRectF& sheet)
{
    painter.save();
    painter.setPen(Qt::NoPen);
    for (int spread = kShadow; spread > 0; --spread) {
        painter.setBrush(QColor(0, 0, 0, 9));
        painter.drawRoundedRect(sheet.adjusted(-spread, -spread + 2.0, spread, spread + 2.0), spread, spread);
    }
    painter.restore();
}

void paintMargins(QPainter& painter, const PageLayout& layout)
{
    const QRectF whole(QPointF(), layout.page);
    const bool isBorderless = layout.imageable.adjusted(-0.5, -0.5, 0.5, 0.5).contains(whole);
    if (!isBorderless) {
        QPen dashes(QColor(128, 128, 128, 150), 0.0, Qt::DashLine);
        painter.setPen(dashes);
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(layout.imageable);
    }
}

void paintOverspill(QPainter& painter, const PageLayout& layout, double overspill)
{
    const QRectF whole(QPointF(), layout.page);
    // The picture is made larger by that much, and loses a little less of what is seen here.
    const double wide = overspill * whole.width() / (whole.width() + 2.0 * overspill);
    const double high = overspill * whole.height() / (whole.height() + 2.0 * overspill);
    const QRectF kept = whole.adjusted(wide, high, -wide, -high);
    QPainterPath lost;
    lost.addRect(whole);
    lost.addRect(kept);
    painter.fillPath(lost, QColor(200, 40, 30, 90));
    painter.setPen(QPen(QColor(255, 255, 255, 200), 0.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(kept);
    painter.setPen(QPen(QColor(160, 20, 10), 0.0, Qt::DashLine));
    painter.drawRect(kept);
}

// On white, whatever the dialog's colours: it is paper.
void PreviewWidget::paintBlank(QPainter& painter)
{
    const PageLayout& layout = blank_->layout;
    QRectF sheet = sheetRect();
    if (blank_->hasBack) {
        const double offset = kBackOffset * std::min(sheet.width(), sheet.height());
        sheet.setSize(sheet.size() * (1.0 - offset / std::max(sheet.width(), 1.0)));
        const QRectF back = sheet.translated(offset, offset * sheet.height() / std::max(sheet.width(), 1.0));
        paintShadow(painter, back);
        painter.fillRect(back, QColor(236, 236, 236));
        painter.setPen(kPaleInk);
        painter.drawText(back.adjusted(0, 0, -6, -4), Qt::AlignRight | Qt::AlignBottom, tr("Back"));
    }
    paintShadow(painter, sheet);
    painter.fillRect(sheet, Qt::white);
    painter.save();
    painter.translate(sheet.topLeft());
    painter.scale(sheet.width() / layout.page.width(), sheet.height() / layout.page.height());
    paintMargins(painter, layout);
    painter.restore();
    const double edge = std::min(sheet.width(), sheet.height()) / 8.0;
    QRectF room = sheet.adjusted(edge, edge, -edge, -edge);
    const int flags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
    QFont usual = font();
    QFont large = usual;
    large.setPointSizeF(usual.pointSizeF() * 1.6);
    const QString heading = displayText(blank_->heading);
    const QString lines = blank_->lines.join(QStringLiteral("\n\n"));
    const double high = QFontMetricsF(large).boundingRect(room, flags, heading).height();
    const double low = QFontMetricsF(usual).boundingRect(room, flags, lines).height();
    room.setTop(std::max(room.top(), room.center().y() - (high * 1.5 + low) / 2.0));
    painter.setPen(kInk);
    painter.setFont(large);
    painter.drawText(room, flags, heading);
    painter.setPen(kPaleInk);
    painter.setFont(usual);
    painter.drawText(room.adjusted(0, high * 1.5, 0, 0), flags, lines);
}

} // namespace halvern
