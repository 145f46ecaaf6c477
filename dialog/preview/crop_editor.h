// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/crop.h"
#include "dialog/page/photo.h"

#include <QImage>
#include <QWidget>

#include <optional>

class QLabel;
class QToolButton;

namespace halvern {

/// The whole of a photo, with a frame around the part that is printed: the frame has the printed area's
/// shape, is dragged, enlarged at its corners, by the wheel and by the keyboard. Main thread only.
class CropEditor : public QWidget {
    Q_OBJECT

public:
    explicit CropEditor(QWidget* parent);

    /// The photo, where it lies, and its small copy; null: it is still being read.
    void edit(const Photo& photo, const PageLayout& layout, const QImage& copy);

    /// Whether one crop can be given to others, too.
    void setHasOthers(bool hasOthers);

    /// Where the frame is drawn, in the widget's coordinates.
    QRectF frameRect() const;

    /// What the Tab key visits here.
    QList<QWidget*> tabOrder() const;

Q_SIGNALS:
    void placementChosen(const halvern::PhotoPlacement& placement);
    void sameForAllAsked();
    void doneAsked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QToolButton* addButton(const QString& name, const QString& text, const QString& tip);
    QRectF photoRect() const;
    QPointF share(const QPointF& at) const;
    std::optional<QPointF> anchorFor(const QPointF& at) const;
    void place(const QPointF& centre, double zoom);
    void move(const QPointF& by);
    void zoomBy(double factor, const QPointF& around);
    void turn();
    void centre();
    void showWhole();
    void tell();

    Photo photo_;
    PageLayout layout_;
    PhotoPlacement placement_;
    QImage copy_; // as the user has turned the photo
    qint64 copySource_ = 0;
    int copyTurns_ = 0;
    QWidget* buttons_;
    QLabel* words_;
    QToolButton* all_;
    std::optional<QPointF> anchor_; // the corner across from the one that is dragged, as a share of the photo
    QPointF lastMouse_;
    bool isDragged_ = false;
};

/// "240 pixels per inch", with a word where that looks soft; empty for a document's page.
QString resolutionText(const PageLayout& layout, const Photo& photo);
bool looksSoft(const PageLayout& layout, const Photo& photo);

} // namespace halvern
