#pragma once

#include <QWidget>

#include <array>

namespace halvern {

/// The back of a picture with its two lines of text, tokens as typed. Shows the upper part of the sheet when
/// there is no room for all of it. Main thread only.
class BackPreview : public QWidget {
public:
    /// `emptyText` stands on a back that nothing is printed on.
    explicit BackPreview(QString emptyText, QWidget* parent = nullptr);

    /// Line 0 or 1; the empty text for a line that is switched off.
    void setLine(int index, const QString& text);

    QString line(int index) const { return lines_.at(size_t(index)); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintLines(QPainter& painter, const QRectF& sheet) const;
    void paintEmptyText(QPainter& painter, const QRectF& sheet) const;

    QString emptyText_;
    std::array<QString, 2> lines_;
};

} // namespace halvern
