// SPDX-License-Identifier: MIT
#include "dialog/preview/preview_widget.h"

#include "dialog/preview/crop_editor.h"
#include "dialog/preview/monitor_profile.h"
#include "dialog/preview/screen_converter.h"
#include "dialog/preview/sharp_photo_reader.h"
#include "dialog/preview/sheet_paint.h"
#include "dialog/preview/sheet_photos.h"
#include "dialog/preview/small_copies.h"
#include "platform/foundation/units.h"
#include "platform/toolkit/plain_text.h"

#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QToolButton>
#include <QtMath>

#include <algorithm>

namespace halvern {

namespace {

constexpr double kMargin = 28.0;
constexpr int kCaptionRoom = 10; // above and below the captions

// By their places on the sheet.
std::vector<PhotoKey> photosOf(const PreviewPage& page)
{
    std::vector<PhotoKey> photos;
    for (const Photo& photo : page.sheet.photos)
        photos.push_back(keyOf(photo));
    if (photos.empty())
        photos.push_back(keyOf(page.photo));
    return photos;
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
        // Two numbers in Arabic digits would change places.
        return locale.textDirection() == Qt::RightToLeft ? isolated(text) : text;
    };
    const double mm = 1.0 / kPointsPerMillimetre;
    const QString metric =
        PreviewWidget::tr("%1 × %2 mm").arg(side(points.width() * mm, 1), side(points.height() * mm, 1));
    const QString imperial =
        PreviewWidget::tr("%1 × %2 in")
            .arg(side(points.width() / kPointsPerInch, 1), side(points.height() / kPointsPerInch, 1));
    const bool metricFirst = locale.measurementSystem() == QLocale::MetricSystem;
    return itemText(metricFirst ? metric : imperial) + QStringLiteral("  ·  ") +
           itemText(metricFirst ? imperial : metric);
}

PreviewWidget::PreviewWidget(QWidget* parent)
    : QWidget(parent),
      reader_(new SharpPhotoReader(this)),
      copies_(new SmallCopies(this)),
      converter_(new ScreenConverter(this)),
      monitor_(new MonitorProfile(this)),
      others_(new SheetPhotos(this)),
      crop_(new CropEditor(this)),
      zoomButton_(new QToolButton(this)),
      cropButton_(new QToolButton(this)),
      backButton_(new QToolButton(this))
{
    setObjectName(QStringLiteral("preview"));
    setAccessibleName(tr("Preview"));
    setMinimumSize(300, 300);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::StrongFocus);
    makeButtons();
    connectReaders();
    showState();
}

void PreviewWidget::makeButtons()
{
    zoomButton_->setObjectName(QStringLiteral("zoomButton"));
    zoomButton_->setText(QStringLiteral("1:1"));
    zoomButton_->setCheckable(true);
    zoomButton_->setAccessibleName(tr("Show at 1:1"));
    zoomButton_->setToolTip(
        tr("Show a screen pixel for each printer dot (double-click the photo, or press Z in the preview)"));
    connect(zoomButton_, &QToolButton::clicked, this, [this](bool on) { setZoomed(on); });
    cropButton_->setObjectName(QStringLiteral("cropButton"));
    cropButton_->setText(tr("Crop"));
    cropButton_->setCheckable(true);
    cropButton_->setToolTip(tr("Choose the part of the photo that is printed (press C in the preview)"));
    connect(cropButton_, &QToolButton::clicked, this, &PreviewWidget::setCropping);
    backButton_->setObjectName(QStringLiteral("backButton"));
    backButton_->setText(tr("Back"));
    backButton_->setCheckable(true);
    backButton_->setToolTip(tr("Show what is printed on the back of the picture"));
    connect(backButton_, &QToolButton::clicked, this, &PreviewWidget::setBack);
    connect(crop_, &CropEditor::placementChosen, this, &PreviewWidget::placementChosen);
    connect(crop_, &CropEditor::sameForAllAsked, this, &PreviewWidget::cropAllAsked);
    connect(crop_, &CropEditor::doneAsked, this, [this] {
        setCropping(false);
        setFocus(Qt::OtherFocusReason);
    });
}

QList<QWidget*> PreviewWidget::tabOrder() const
{
    if (isCropping_)
        return crop_->tabOrder();
    return {const_cast<PreviewWidget*>(this), cropButton_, backButton_, zoomButton_};
}

void PreviewWidget::connectReaders()
{
    connect(reader_, &SharpPhotoReader::ready, this, [this](const QImage& detail) {
        screen_.setDetail(detail);
        showState();
    });
    connect(reader_, &SharpPhotoReader::failed, this, [this](const QString& sentence) {
        detailProblem_ = sentence;
        showState();
    });
    connect(copies_, &SmallCopies::ready, this, [this](const QImage& copy) {
        copy_ = copy;
        screen_.setPreview(copy);
        showState();
    });
    connect(others_, &SheetPhotos::changed, this, [this] {
        wantOthers();
        update();
    });
    connect(others_, &SheetPhotos::damageFound, this, &PreviewWidget::damageFound);
    connect(copies_, &SmallCopies::damageFound, this, &PreviewWidget::damageFound);
    connect(copies_, &SmallCopies::failed, this, &PreviewWidget::failed);
    connect(converter_, &ScreenConverter::ready, this, qOverload<>(&QWidget::update));
    connect(monitor_, &MonitorProfile::changed, this, &PreviewWidget::planColours);
}

QSize PreviewWidget::sizeHint() const
{
    return {620, 620};
}

void PreviewWidget::showPage(const PreviewPage& page)
{
    const bool isSameView = page.current == page_.current && page.layout.photo == page_.layout.photo;
    if (photosOf(page) != photosOf(page_) || (isZoomed_ && !isSameView))
        converter_->forget();
    page_ = page;
    blank_.reset();
    planColours();
    copy_ = copies_->find(page.photo);
    hasPage_ = true;
    wantOthers();
    // A small one from its place on the sheet will do until then.
    screen_.setPreview(copy_.isNull() ? others_->image(page.photo) : copy_);
    screen_.setLook(page.look);
    text_.clear();
    if (isZoomed_) {
        keepPageInView();
        readDetail();
    }
    showState();
}

void PreviewWidget::planColours()
{
    ScreenPlan plan = page_.screen;
    plan.monitor = monitor_->bytes();
    converter_->setPlan(plan);
    update();
}

void PreviewWidget::showSheet(const BlankSheet& sheet)
{
    page_ = {};
    page_.layout = sheet.layout;
    blank_ = sheet;
    text_.clear();
    hasPage_ = true;
    isZoomed_ = false;
    isCropping_ = false;
    showState();
}

QStringList PreviewWidget::described() const
{
    QStringList words =
        blank_ ? QStringList(displayText(blank_->heading)) + blank_->lines + captions() : captions();
    words += overspillWords();
    words.removeAll(QString());
    return words;
}

void PreviewWidget::showText(const QString& text)
{
    text_ = displayText(text);
    hasPage_ = false;
    isCropping_ = false;
    blank_.reset();
    setZoomed(false);
}

void PreviewWidget::showState()
{
    const bool canMove = hasPage_ && page_.layout.isCut && !isZoomed_;
    setCursor(canMove || isZoomed_ ? Qt::OpenHandCursor : Qt::ArrowCursor);
    QStringList tips{canMove ? tr("Drag the photo to choose what is cut away") : QString(), overspillWords()};
    tips.removeAll(QString());
    setPlainToolTip(this, tips.join(QLatin1Char('\n')));
    setPlainDescription(this, hasPage_ ? described().join(QStringLiteral(". ")) : text_);
    zoomButton_->setVisible(hasPage_ && !blank_ && !isCropping_);
    isBack_ = isBack_ && !page_.back.isEmpty() && !isZoomed_ && !isCropping_;
    cropButton_->setVisible(hasPage_ && !blank_ && !isCropping_);
    backButton_->setVisible(hasPage_ && !blank_ && !isCropping_ && !page_.back.isEmpty());
    backButton_->setChecked(isBack_);
    cropButton_->setChecked(isCropping_);
    crop_->setVisible(isCropping_);
    if (isCropping_) {
        crop_->setGeometry(rect());
        crop_->edit(page_.photo, page_.layout, screen_.preview());
    }
    update();
}

int PreviewWidget::captionHeight() const
{
    return 2 * fontMetrics().lineSpacing() + 2 * kCaptionRoom;
}

QRect PreviewWidget::viewRect() const
{
    return rect().adjusted(0, 0, 0, -captionHeight());
}

void PreviewWidget::resizeEvent(QResizeEvent*)
{
    const QSize size = zoomButton_->sizeHint();
    zoomButton_->setGeometry(
        QRect(QPoint(width() - size.width() - kCaptionRoom, height() - (captionHeight() + size.height()) / 2),
              size));
    const QSize crop = cropButton_->sizeHint();
    cropButton_->setGeometry(
        QRect(QPoint(kCaptionRoom, height() - (captionHeight() + crop.height()) / 2), crop));
    backButton_->setGeometry(cropButton_->geometry().translated(crop.width() + kCaptionRoom / 2, 0));
    backButton_->resize(backButton_->sizeHint());
    crop_->setGeometry(rect());
    if (isZoomed_)
        keepPageInView();
    if (hasPage_ && !blank_)
        wantOthers();
}

void PreviewWidget::setCropping(bool isCropping)
{
    isCropping_ = isCropping && hasPage_ && !blank_;
    if (isCropping_)
        setZoomed(false);
    showState();
    if (isCropping_)
        crop_->setFocus(Qt::OtherFocusReason);
}

void PreviewWidget::setBack(bool isBack)
{
    setZoomed(false);
    isBack_ = isBack;
    showState();
}

QRectF PreviewWidget::sheetRect() const
{
    const QRectF room = QRectF(viewRect()).adjusted(kMargin, kMargin, -kMargin, -kMargin / 2);
    QRectF sheet(QPointF(), page_.layout.page.scaled(room.size(), Qt::KeepAspectRatio));
    sheet.moveCenter(room.center());
    return sheet;
}

QString PreviewWidget::sizeCaption() const
{
    if (isZoomed_)
        return tr("1:1, a screen pixel for each printer dot (%1 dpi)").arg(page_.resolution);
    QString caption = pageSizeText(page_.layout.page);
    if (page_.layout.isCut)
        caption += QStringLiteral("  ·  ") + tr("part of the photo is cut away");
    else if (page_.overspill > 0.0)
        caption += QStringLiteral("  ·  ") + tr("the edges are cut away");
    return caption;
}

QString PreviewWidget::overspillWords() const
{
    if (blank_ || !hasPage_ || page_.overspill <= 0.0)
        return {};
    return tr("The picture reaches %1 mm beyond each edge of the paper, so that nothing stays white: what is "
              "marked along the edges is cut away")
        .arg(QLocale().toString(page_.overspill / kPointsPerMillimetre, 'g', 3));
}

QString PreviewWidget::colorCaption() const
{
    QStringList parts{page_.proofWords, stateCaption()};
    parts.removeAll(QString());
    return parts.join(QStringLiteral("  ·  "));
}

QString PreviewWidget::stateCaption() const
{
    if (isZoomed_ && !detailProblem_.isEmpty())
        return detailProblem_;
    if (isReadingDetail())
        return tr("Reading the photo...");
    if (page_.photo.isDamaged)
        return tr("A part of this photo is missing");
    if (looksSoft(page_.layout, page_.photo))
        return resolutionText(page_.layout, page_.photo);
    const bool showsSharpening = page_.look.sharpens() && isZoomed_;
    if (page_.look.changesColors() || showsSharpening)
        return tr("The printer's adjustments, approximated on the screen");
    return page_.look.sharpens() ? tr("Sharpening shows at 1:1") : QString();
}

QStringList PreviewWidget::captions() const
{
    if (isBack_)
        return {tr("The back of the picture, as the printer writes on it")};
    QStringList lines{sizeCaption(), colorCaption()};
    if (blank_)
        lines = {pageSizeText(page_.layout.page)};
    lines.removeAll(QString());
    return lines;
}

void PreviewWidget::paintSheet(QPainter& painter)
{
    const PageLayout& layout = page_.layout;
    const QRectF sheet = sheetRect();
    const double scale = sheet.width() / layout.page.width();
    paintShadow(painter, sheet);
    painter.save();
    painter.translate(sheet.topLeft());
    painter.scale(scale, scale);
    painter.fillRect(QRectF(QPointF(), layout.page), converter_->paper());
    paintSheetsPhotos(painter, scale * devicePixelRatioF());
    paintMargins(painter, layout);
    if (page_.overspill > 0.0)
        paintOverspill(painter, layout, page_.overspill);
    if (page_.hasOthers()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2.0 / scale));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(page_.sheet.sheet.photos[page_.current].cell);
    }
    painter.restore();
}

void PreviewWidget::paintCaptions(QPainter& painter) const
{
    const int left = cropButton_->width() + (page_.back.isEmpty() ? 0 : backButton_->width());
    const int side = std::max(zoomButton_->width(), left) + 2 * kCaptionRoom;
    const int line = fontMetrics().lineSpacing();
    QRect room(side, height() - captionHeight() + kCaptionRoom, width() - 2 * side, line);
    const QStringList lines = captions();
    if (lines.size() == 1)
        room.translate(0, line / 2);
    for (const QString& text : lines) {
        painter.drawText(room, Qt::AlignCenter, fontMetrics().elidedText(text, Qt::ElideRight, room.width()));
        room.translate(0, line);
    }
}

void PreviewWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor background = neutralGround(palette());
    painter.fillRect(rect(), background);
    painter.setPen(inkOn(background));
    if (!hasPage_) {
        painter.drawText(rect().adjusted(40, 40, -40, -40), Qt::AlignCenter | Qt::TextWordWrap, text_);
        return;
    }
    if (blank_)
        paintBlank(painter);
    else if (isZoomed_)
        paintDots(painter);
    else if (isBack_)
        paintBack(painter);
    else
        paintSheet(painter);
    painter.setPen(inkOn(background));
    paintCaptions(painter);
    if (hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2.0));
        painter.drawRect(QRectF(rect()).adjusted(1.0, 1.0, -1.0, -1.0));
    }
}

void PreviewWidget::mousePressEvent(QMouseEvent* event)
{
    lastMouse_ = event->position();
    if (!isZoomed_ && event->button() == Qt::LeftButton) {
        if (const std::optional<size_t> place = placeAt(event->position()); place && *place != page_.current)
            Q_EMIT photoChosen(*place);
    }
    if (isZoomed_ && event->button() == Qt::LeftButton)
        setCursor(Qt::ClosedHandCursor);
}

void PreviewWidget::mouseReleaseEvent(QMouseEvent*)
{
    if (isZoomed_)
        setCursor(Qt::OpenHandCursor);
}

void PreviewWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (!hasPage_ || !(event->buttons() & Qt::LeftButton))
        return;
    const QPointF moved = event->position() - lastMouse_;
    lastMouse_ = event->position();
    if (isZoomed_)
        pan(moved);
    else if (page_.layout.isCut)
        movePhoto(moved);
}

void PreviewWidget::movePhoto(const QPointF& by)
{
    const PageLayout& layout = page_.layout;
    const double scale = sheetRect().width() / layout.page.width();
    const QSizeF room = layout.frame.size() - layout.photo.size();
    const QPointF offset = layout.photo.topLeft() - layout.frame.topLeft() + by / scale;
    const auto share = [](double at, double all) {
        return qAbs(all) < 0.01 ? 0.5 : std::clamp(at / all, 0.0, 1.0);
    };
    PhotoPlacement placement = page_.photo.placement;
    placement.position = positionOfPhoto({share(offset.x(), room.width()), share(offset.y(), room.height())},
                                         layout.layoutsTurns);
    Q_EMIT placementChosen(placement);
}

} // namespace halvern
