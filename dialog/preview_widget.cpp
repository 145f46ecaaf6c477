#include "dialog/preview_widget.h"

#include "dialog/page_renderer.h"

#include <QLocale>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace halvern {

namespace {

constexpr double kMargin = 28.0;
constexpr double kCaptionHeight = 30.0;
constexpr double kShadow = 7.0;

// A photo's colours are judged on a neutral gray, light or dark with the rest of the dialog.
QColor ground(const QPalette& palette)
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
    for (double spread = kShadow; spread > 0.0; spread -= 1.0) {
        painter.setBrush(QColor(0, 0, 0, 9));
        painter.drawRoundedRect(sheet.adjusted(-spread, -spread + 2.0, spread, spread + 2.0), spread, spread);
    }
    painter.restore();
}

} // namespace

QString pageSizeText(const QSizeF& points)
{
    const QLocale locale;
    const auto side = [&](double value, int decimals) {
        QString text = locale.toString(value, 'f', decimals);
        const QString zero = locale.decimalPoint() + QLatin1Char('0');
        if (text.endsWith(zero))
            text.chop(zero.size());
        return text;
    };
    const double mm = 25.4 / 72.0;
    const QString metric =
        PreviewWidget::tr("%1 × %2 mm").arg(side(points.width() * mm, 1), side(points.height() * mm, 1));
    const QString imperial =
        PreviewWidget::tr("%1 × %2 in").arg(side(points.width() / 72.0, 1), side(points.height() / 72.0, 1));
    const bool metricFirst = locale.measurementSystem() == QLocale::MetricSystem;
    return (metricFirst ? metric : imperial) + QStringLiteral("  ·  ") + (metricFirst ? imperial : metric);
}

PreviewWidget::PreviewWidget(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("preview"));
    setAccessibleName(tr("Preview"));
    setMinimumSize(300, 300);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize PreviewWidget::sizeHint() const
{
    return {620, 620};
}

void PreviewWidget::showPage(const PageLayout& layout, const QImage& photo)
{
    layout_ = layout;
    photo_ = photo;
    text_.clear();
    hasPage_ = true;
    setCursor(layout.isCut ? Qt::OpenHandCursor : Qt::ArrowCursor);
    setToolTip(layout.isCut ? tr("Drag the photo to choose what is cut away") : QString());
    setAccessibleDescription(sizeCaption());
    update();
}

void PreviewWidget::showText(const QString& text)
{
    text_ = text;
    hasPage_ = false;
    unsetCursor();
    setAccessibleDescription(text);
    update();
}

QRectF PreviewWidget::sheetRect() const
{
    const QRectF room = QRectF(rect()).adjusted(kMargin, kMargin, -kMargin, -kMargin - kCaptionHeight);
    QRectF sheet(QPointF(), layout_.page.scaled(room.size(), Qt::KeepAspectRatio));
    sheet.moveCenter(room.center());
    return sheet;
}

QString PreviewWidget::sizeCaption() const
{
    QString caption = pageSizeText(layout_.page);
    if (layout_.isCut)
        caption += QStringLiteral("  ·  ") + tr("part of the photo is cut away");
    return caption;
}

void PreviewWidget::paintSheet(QPainter& painter) const
{
    const QRectF sheet = sheetRect();
    const double scale = sheet.width() / layout_.page.width();
    paintShadow(painter, sheet);
    painter.save();
    painter.translate(sheet.topLeft());
    painter.scale(scale, scale);
    paintPage(painter, layout_, photo_);
    const QRectF whole(QPointF(), layout_.page);
    const bool isBorderless = layout_.imageable.adjusted(-0.5, -0.5, 0.5, 0.5).contains(whole);
    if (!isBorderless) {
        QPen dashes(QColor(128, 128, 128, 150), 0.0, Qt::DashLine);
        painter.setPen(dashes);
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(layout_.imageable);
    }
    painter.restore();
}

void PreviewWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor background = ground(palette());
    painter.fillRect(rect(), background);
    painter.setPen(inkOn(background));
    if (!hasPage_) {
        painter.drawText(rect().adjusted(40, 40, -40, -40), Qt::AlignCenter | Qt::TextWordWrap, text_);
        return;
    }
    paintSheet(painter);
    const QRectF caption(0.0, height() - kCaptionHeight - 8.0, width(), kCaptionHeight);
    painter.setPen(inkOn(background));
    painter.drawText(caption, Qt::AlignCenter, sizeCaption());
}

void PreviewWidget::mousePressEvent(QMouseEvent* event)
{
    lastMouse_ = event->position();
}

void PreviewWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (!hasPage_ || !layout_.isCut || !(event->buttons() & Qt::LeftButton))
        return;
    const double scale = sheetRect().width() / layout_.page.width();
    const QPointF moved = (event->position() - lastMouse_) / scale;
    lastMouse_ = event->position();
    const QSizeF room = layout_.imageable.size() - layout_.photo.size();
    const QPointF offset = layout_.photo.topLeft() - layout_.imageable.topLeft() + moved;
    const auto share = [](double at, double all) {
        return qAbs(all) < 0.01 ? 0.5 : std::clamp(at / all, 0.0, 1.0);
    };
    Q_EMIT positionChosen({share(offset.x(), room.width()), share(offset.y(), room.height())});
}

} // namespace halvern
