// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <array>
#include <functional>

namespace halvern {

/// The back of a picture with its two lines of text where the printer puts them, tokens as typed. Shows the
/// upper part of the sheet when there is no room for all of it. Main thread only.
class BackPreview : public QWidget {
public:
    /// `sheet` answers the upright sheet's size in points, an empty one while it is not known; it is asked at
    /// each painting. `emptyText` stands on a back that nothing is printed on, `smallText` below a line so
    /// long that its letters become hard to read.
    BackPreview(std::function<QSizeF()> sheet, QString emptyText, QString smallText,
                QWidget* parent = nullptr);

    /// Line 0 or 1; the empty text for a line that is switched off.
    void setLine(int index, const QString& text);

    QString line(int index) const { return lines_.at(size_t(index)); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintLines(QPainter& painter, const QRectF& sheet, qreal millimetre) const;
    qreal paintLine(QPainter& painter, const QRectF& place, qreal letterHeight, const QString& line) const;
    QFont remarkFont() const;
    void paintEmptyText(QPainter& painter, const QRectF& sheet) const;

    std::function<QSizeF()> sheet_;
    QString emptyText_;
    QString smallText_;
    std::array<QString, 2> lines_;
};

} // namespace halvern
