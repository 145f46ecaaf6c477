#pragma once

#include "dialog/page_layout.h"

#include <QImage>
#include <QWidget>

namespace halvern {

/// Shows a page as it will come out, on a neutral ground, with its size beneath. Main thread only.
class PreviewWidget : public QWidget {
    Q_OBJECT

public:
    explicit PreviewWidget(QWidget* parent);

    /// Shows a page; a null image shows the empty sheet.
    void showPage(const PageLayout& layout, const QImage& photo);

    /// Shows a sentence in place of a page.
    void showText(const QString& text);

    /// Where the sheet is drawn, in the widget's coordinates.
    QRectF sheetRect() const;

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user drags the photo's cut or place: 0 to 1 each way.
    void positionChosen(const QPointF& position);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void paintSheet(QPainter& painter) const;
    QString sizeCaption() const;

    PageLayout layout_;
    QImage photo_;
    QString text_;
    bool hasPage_ = false;
    QPointF lastMouse_;
};

/// "102 x 152 mm (4.0 x 6.0 in)", the units that the user's country uses first.
QString pageSizeText(const QSizeF& points);

} // namespace halvern
