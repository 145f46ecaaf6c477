// SPDX-License-Identifier: MIT
#include "panels/backprint/back_preview.h"

#include "platform/foundation/units.h"
#include "platform/maker/backprint_text.h"
#include "platform/toolkit/plain_text.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <utility>

namespace halvern {

namespace {

// A postcard, while nobody says what the sheet is.
constexpr QSizeF kUsualSheet(288.0, 432.0);

// A line that is too long for the sheet gets smaller letters, a line that is empty leaves no gap.
using backprint::kEdge;
using backprint::kLetterHeight;
using backprint::kLineHeight;
constexpr qreal kReadableLetters = 1.5;

// The letters of a large sheet would be too small to read on the screen.
constexpr qreal kSmallestLetters = 9.0;

constexpr int kShadow = 3;
constexpr qreal kCorner = 3.0;

// Photo paper is the same in every colour scheme.
constexpr QColor kPaper(252, 251, 247);
constexpr QColor kInk(52, 58, 70);
constexpr QColor kFaintInk(116, 120, 128);
constexpr QColor kTokenTint(66, 120, 190, 44);

// Tokens stand out, because something else will be printed in their place.
void paintTokens(QPainter& painter, const QString& text, QPointF baseline)
{
    const QFontMetricsF metrics(painter.font(), painter.device());
    painter.setPen(Qt::NoPen);
    painter.setBrush(kTokenTint);
    for (const char* const row : backprint::kTokens) {
        const QLatin1StringView token(row);
        for (qsizetype at = text.indexOf(token); at >= 0; at = text.indexOf(token, at + token.size())) {
            const qreal left = metrics.horizontalAdvance(text.left(at));
            const qreal right = metrics.horizontalAdvance(text.left(at + token.size()));
            painter.drawRoundedRect(
                QRectF(baseline.x() + left, baseline.y() - metrics.ascent(), right - left, metrics.height()),
                2.0, 2.0);
        }
    }
}

void paintSheet(QPainter& painter, const QRectF& sheet)
{
    painter.setPen(Qt::NoPen);
    for (int spread = kShadow; spread > 0; --spread) {
        painter.setBrush(QColor(0, 0, 0, 14));
        painter.drawRoundedRect(sheet.adjusted(-spread + 1, 0, spread - 1, spread), kCorner, kCorner);
    }
    painter.setBrush(kPaper);
    painter.setPen(QPen(QColor(0, 0, 0, 70), 1.0));
    painter.drawRoundedRect(sheet.adjusted(0.5, 0.5, -0.5, -0.5), kCorner, kCorner);
}

// The sheet goes on below: it fades into what is behind it.
void paintFade(QPainter& painter, const QRectF& visible, const QColor& background)
{
    const QRectF band(visible.left(), visible.bottom() - 36, visible.width(), 37);
    QColor clear = background;
    clear.setAlpha(0);
    QLinearGradient fade(band.topLeft(), band.bottomLeft());
    fade.setColorAt(0.0, clear);
    fade.setColorAt(1.0, background);
    painter.fillRect(band, fade);
}

} // namespace

BackPreview::BackPreview(std::function<QSizeF()> sheet, QString emptyText, QString smallText, QWidget* parent)
    : QWidget(parent),
      sheet_(std::move(sheet)),
      emptyText_(std::move(emptyText)),
      smallText_(std::move(smallText))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void BackPreview::setLine(int index, const QString& text)
{
    if (std::exchange(lines_.at(size_t(index)), text) == text)
        return;
    setPlainDescription(this, lines_[0] + QLatin1Char('\n') + lines_[1]);
    update();
}

QSize BackPreview::sizeHint() const
{
    return minimumSizeHint(); // it takes what is left, and gives way first
}

QSize BackPreview::minimumSizeHint() const
{
    return {240, 110};
}

void BackPreview::paintLines(QPainter& painter, const QRectF& sheet, qreal millimetre) const
{
    const qreal edge = kEdge * millimetre;
    const qreal letterHeight = std::max(kSmallestLetters, kLetterHeight * millimetre);
    const qreal lineHeight = letterHeight * kLineHeight / kLetterHeight;
    qreal smallest = 1.0;
    QRectF place(sheet.left() + edge, sheet.top() + edge, sheet.width() - 2 * edge, lineHeight);
    for (const QString& line : lines_) {
        if (line.isEmpty())
            continue;
        smallest = std::min(smallest, paintLine(painter, place, letterHeight, line));
        place.translate(0.0, lineHeight);
    }
    if (smallest * kLetterHeight >= kReadableLetters)
        return;
    painter.setFont(remarkFont());
    painter.setPen(kFaintInk);
    // Set off from the lines: it is not printed.
    place.translate(0.0, lineHeight);
    place.setBottom(place.top() + 3 * lineHeight);
    painter.drawText(place, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, smallText_);
}

// The share of the usual height that is left to the letters.
qreal BackPreview::paintLine(QPainter& painter, const QRectF& place, qreal letterHeight,
                             const QString& line) const
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(qRound(letterHeight));
    const QFontMetricsF metrics(font, this);
    const qreal fit = std::min(1.0, place.width() / metrics.horizontalAdvance(line));
    const qreal middle = (metrics.ascent() - metrics.descent()) / 2.0;
    painter.save();
    painter.setFont(font);
    painter.translate(place.left(), place.center().y() + middle * fit);
    painter.scale(fit, fit);
    paintTokens(painter, line, QPointF());
    painter.setPen(kInk);
    painter.drawText(QPointF(), line);
    painter.restore();
    return fit;
}

// Remarks are in italics, where the writing has them.
QFont BackPreview::remarkFont() const
{
    QFont remark = font();
    remark.setItalic(!isRightToLeft());
    return remark;
}

void BackPreview::paintEmptyText(QPainter& painter, const QRectF& sheet) const
{
    painter.setFont(remarkFont());
    painter.setPen(kFaintInk);
    painter.drawText(sheet.intersected(QRectF(rect())), Qt::AlignCenter | Qt::TextWordWrap, emptyText_);
}

void BackPreview::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QSizeF known = sheet_();
    const QSizeF paper = known.isEmpty() ? kUsualSheet : known;
    const qreal sheetWidth = width() - 2 * kShadow;
    const QRectF sheet(kShadow, 1.0, sheetWidth, sheetWidth * paper.height() / paper.width());
    paintSheet(painter, sheet);
    if (lines_[0].isEmpty() && lines_[1].isEmpty())
        paintEmptyText(painter, sheet);
    else
        paintLines(painter, sheet, sheetWidth / paper.width() * kPointsPerMillimetre);
    if (sheet.bottom() + kShadow > height())
        paintFade(painter, QRectF(rect()), palette().color(backgroundRole()));
}

} // namespace halvern
