// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/page_renderer.h"
#include "dialog/page/screen_colours.h"
#include "dialog/preview/screen_photo.h"
#include "platform/foundation/units.h"

#include <QImage>
#include <QWidget>

#include <optional>

class QToolButton;

namespace halvern {

class CropEditor;
class MonitorProfile;
class ScreenConverter;
class SharpPhotoReader;
class SheetPhotos;
class SmallCopies;

/// A page for the preview.
struct PreviewPage {
    PageLayout layout;
    Photo photo;
    int resolution = kUsualResolution; ///< dots per inch of the printer
    Look look;
    ScreenPlan screen;       ///< without the screen's profile: the preview knows that itself
    QString proofWords;      ///< what is simulated; empty: nothing
    SheetToPrint sheet = {}; ///< with other photos; without any the photo is alone
    size_t current = 0;      ///< the photo's place on it
    QStringList back = {};   ///< the lines that are printed on its back
    double overspill = 0.0;  ///< points that run over each of the paper's edges and are cut away

    bool hasOthers() const { return sheet.photos.size() > 1; }
};

/// A sheet whose page nobody here knows.
struct BlankSheet {
    PageLayout layout;
    QString heading;   ///< whose page it is
    QStringList lines; ///< what is said of it, a paragraph each
    bool hasBack = false;
};

/// Shows a page as it will come out, on a neutral ground, with its size beneath: whole, or at 1:1, where a
/// screen pixel is a printer's dot and sharpening can be judged. The printer's adjustments are shown on the
/// screen only. Main thread only.
class PreviewWidget : public QWidget {
    Q_OBJECT

public:
    explicit PreviewWidget(QWidget* parent);

    void showPage(const PreviewPage& page);

    /// Shows a sheet with words in the place of a page.
    void showSheet(const BlankSheet& sheet);

    /// Shows a sentence in place of a page.
    void showText(const QString& text);

    /// Where the sheet is drawn when it is shown whole, in the widget's coordinates.
    QRectF sheetRect() const;

    /// Whether the photo's own pixels are still being read for 1:1; its small copy is shown meanwhile.
    bool isReadingDetail() const;

    /// Shows the page at 1:1 or whole. `around` is a point of the page, in points, that comes to the middle;
    /// without it, the middle of the photo does.
    void setZoomed(bool zoomed, std::optional<QPointF> around = std::nullopt);

    QToolButton* zoomButton() const { return zoomButton_; }

    /// Shows the whole photo with a frame around what is printed of it, or the sheet again.
    void setCropping(bool isCropping);

    QToolButton* cropButton() const { return cropButton_; }

    /// Shows what is printed on the back, or the front again.
    void setBack(bool isBack);

    QToolButton* backButton() const { return backButton_; }

    /// What the Tab key may visit here.
    QList<QWidget*> tabOrder() const;

    /// The two lines under the page: its size, and what the colours are.
    QStringList captions() const;

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user drags the photo's cut or place, or crops or turns it.
    void placementChosen(const halvern::PhotoPlacement& placement);
    /// The user gives all photos this one's crop.
    void cropAllAsked();
    /// The user points at another photo of the sheet.
    void photoChosen(size_t place);
    /// A photo that was read to be shown lacks a part.
    void damageFound(const QString& path, int page);
    /// The photo cannot be read any more; a sentence.
    void failed(const QString& sentence);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void paintSheet(QPainter& painter);
    void paintDots(QPainter& painter);
    void paintBlank(QPainter& painter);
    void paintBack(QPainter& painter);
    void paintSheetsPhotos(QPainter& painter, double scale);
    void paintOthers(QPainter& painter, double scale);
    void wantOthers();
    QStringList photoCaptions() const;
    std::optional<size_t> placeAt(const QPointF& position) const;
    void makeButtons();
    void connectReaders();
    void paintCaptions(QPainter& painter) const;
    QRect viewRect() const;
    int captionHeight() const;
    QStringList described() const;
    QString sizeCaption() const;
    QString overspillWords() const;
    QString colorCaption() const;
    QString stateCaption() const;
    void movePhoto(const QPointF& by);
    void pan(const QPointF& by);
    void keepPageInView();
    double dotsPerPoint() const;
    QRect photoInDots() const;
    QSize storedDots() const;
    void readDetail();
    void showState();
    void planColours();

    PreviewPage page_;
    ScreenPhoto screen_;
    SharpPhotoReader* reader_;
    SmallCopies* copies_;
    ScreenConverter* converter_;
    MonitorProfile* monitor_;
    SheetPhotos* others_;
    std::vector<ScreenPhoto> otherScreens_; // by their places on the sheet
    CropEditor* crop_;
    QImage copy_; // the photo's, null as long as it is read
    QToolButton* zoomButton_;
    QToolButton* cropButton_;
    QToolButton* backButton_;
    QString text_;
    QString detailProblem_;
    std::optional<BlankSheet> blank_; // with hasPage_
    bool hasPage_ = false;
    bool isZoomed_ = false;
    bool isCropping_ = false;
    bool isBack_ = false;
    QPointF middle_; // of the view at 1:1, in points of the page
    QPointF lastMouse_;
};

/// "102 x 152 mm (4.0 x 6.0 in)", the units that the user's country uses first.
QString pageSizeText(const QSizeF& points);

} // namespace halvern
