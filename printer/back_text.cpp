// SPDX-License-Identifier: MIT
#include "printer/back_text.h"

#include "printer/page_stream.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QString>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace halvern {

namespace {

constexpr double kMillimetre = 1.0 / 25.4;
constexpr double kEdge = printed_back::kEdge * kMillimetre;
constexpr double kLetterHeight = printed_back::kLetterHeight * kMillimetre;
constexpr double kLineHeight = printed_back::kLineHeight * kMillimetre;

// A line that is too long for the sheet gets smaller letters, so that all of it can be read.
QFont fittingFont(const QString& text, double height, double width)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(std::max(1, qRound(height)));
    const double wanted = QFontMetricsF(font).horizontalAdvance(text);
    if (wanted > width)
        font.setPixelSize(std::max(1, static_cast<int>(std::floor(height * width / wanted))));
    return font;
}

} // namespace

std::vector<std::string> backLines(const JobOptions& options)
{
    std::vector<std::string> lines;
    for (const char* key : {"CVP1", "CVP2"}) {
        const auto stored = optionValue(options, key);
        if (!stored || stored->empty() || !optionIsOn(options, std::string("Enable") + key))
            continue;
        QString text = QString::fromUtf8(stored->data(), static_cast<qsizetype>(stored->size()));
        text.replace(QChar(0x2264), QLatin1Char(',')).replace(QChar(0x00e6), QLatin1Char('\''));
        lines.push_back(text.toStdString());
    }
    return lines;
}

BackText::BackText(const std::vector<std::string>& lines, const PageHeader& page)
{
    const double edge = kEdge * page.xDpi;
    const double lineHeight = kLineHeight * page.yDpi;
    const int rows = static_cast<int>(std::ceil(lineHeight * static_cast<double>(lines.size())));
    top_ = static_cast<uint32_t>(kEdge * page.yDpi);
    strip_ = QImage(static_cast<int>(page.width), rows, QImage::Format_RGB888);
    strip_.fill(Qt::white);
    QPainter painter(&strip_);
    painter.setPen(QColor(60, 60, 60));
    double y = 0.0;
    for (const std::string& line : lines) {
        const QString text = QString::fromStdString(line);
        const QRectF place(edge, y, page.width - 2 * edge, lineHeight);
        painter.setFont(fittingFont(text, kLetterHeight * page.yDpi, place.width()));
        painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
        y += lineHeight;
    }
}

void BackText::row(uint32_t y, std::span<uint8_t> pixels) const
{
    if (y < top_ || y - top_ >= static_cast<uint32_t>(strip_.height()))
        std::fill(pixels.begin(), pixels.end(), uint8_t{0xff});
    else
        std::memcpy(pixels.data(), strip_.constScanLine(static_cast<int>(y - top_)), pixels.size());
}

} // namespace halvern
