// SPDX-License-Identifier: MIT
#include "dialog/window/preview_side.h"

#include "dialog/preview/preview_widget.h"
#include "dialog/session/dialog_session.h"
#include "dialog/session/sheet_words.h"
#include "dialog/window/photo_adding.h"
#include "dialog/window/photo_strip.h"
#include "platform/foundation/user_defaults.h"
#include "platform/toolkit/plain_text.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace halvern {

namespace {

constexpr int kLongestFileName = 120;
constexpr int kLeastHeight = 430; // with the photos in a row, or too little is left for the preview
constexpr int kFoldMargin = 4;
const QString kPhotosFoldedKey = QStringLiteral("PhotosFolded");

QToolButton* makeArrow(Qt::ArrowType arrow, const QString& name, QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setArrowType(arrow);
    button->setAutoRaise(true);
    setPlainName(button, name);
    setPlainToolTip(button, name);
    return button;
}

} // namespace

PreviewSide::PreviewSide(DialogSession& session, QWidget* window)
    : QWidget(window),
      session_(session),
      preview_(new PreviewWidget(this)),
      pager_(new QWidget(this)),
      pageNumber_(new QLabel(pager_)),
      back_(makeArrow(isRightToLeft() ? Qt::RightArrow : Qt::LeftArrow, tr("Previous photo"), pager_)),
      forward_(makeArrow(isRightToLeft() ? Qt::LeftArrow : Qt::RightArrow, tr("Next photo"), pager_))
{
    preview_->setMinimumSize(220, 180);
    makePager();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(preview_, 1);
    auto* below = new QHBoxLayout;
    if (!session_.document())
        makeStrip(below);
    below->addWidget(pager_, 1);
    if (!session_.document())
        makeAddButton(below, window);
    column->addLayout(below);
    if (strip_)
        column->addWidget(strip_);
    connectPreview();
}

void PreviewSide::makePager()
{
    pageNumber_->setObjectName(QStringLiteral("photoNumber"));
    auto* row = new QHBoxLayout(pager_);
    row->addStretch();
    row->addWidget(back_);
    row->addWidget(pageNumber_);
    row->addWidget(forward_);
    row->addStretch();
    connect(back_, &QToolButton::clicked, this, [this] { step(-1); });
    connect(forward_, &QToolButton::clicked, this, [this] { step(1); });
}

void PreviewSide::makeAddButton(QHBoxLayout* row, QWidget* window)
{
    adding_ = new PhotoAdding(window, session_);
    add_ = adding_->makeButton(this);
    row->addStretch();
    row->addWidget(add_);
    adding_->watch(strip_->dropArea());
    connect(adding_, &PhotoAdding::failed, this, &PreviewSide::failed);
}

void PreviewSide::makeStrip(QHBoxLayout* row)
{
    strip_ = new PhotoStrip(session_, this);
    fold_ = new QToolButton(this);
    fold_->setObjectName(QStringLiteral("foldPhotos"));
    fold_->setAutoRaise(true);
    isFolded_ = UserDefaults::standardUserDefaults().objectForKey(kPhotosFoldedKey).toBool();
    fold_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    fold_->setToolTip(tr("Show the photos in a row, or not"));
    row->addSpacing(kFoldMargin);
    row->addWidget(fold_);
    row->addStretch();
    connect(fold_, &QToolButton::clicked, this, [this] {
        isFolded_ = !isFolded_;
        UserDefaults::standardUserDefaults().changeGlobal(
            [isFolded = isFolded_](QVariantMap& values) { values.insert(kPhotosFoldedKey, isFolded); });
        showStrip();
    });
    connect(strip_, &PhotoStrip::photoChosen, this, &PreviewSide::showPhoto);
    connect(strip_, &PhotoStrip::cropAsked, this, &PreviewSide::startCropping);
    connect(strip_, &PhotoStrip::wordsChanged, this, &PreviewSide::showStrip);
}

// One photo needs no row.
void PreviewSide::showStrip()
{
    if (!strip_)
        return;
    const bool isNeeded = session_.photos().size() > 1;
    const bool hasRoom = height() >= kLeastHeight;
    fold_->setVisible(isNeeded && hasRoom);
    fold_->setText(strip_->inWords()); // plain: ours
    const Qt::ArrowType folded = layoutDirection() == Qt::RightToLeft ? Qt::LeftArrow : Qt::RightArrow;
    fold_->setArrowType(isFolded_ ? folded : Qt::DownArrow);
    strip_->setVisible(isNeeded && hasRoom && !isFolded_);
}

void PreviewSide::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    showStrip();
}

void PreviewSide::connectPreview()
{
    connect(preview_, &PreviewWidget::placementChosen, this, [this](const PhotoPlacement& placement) {
        if (shown_)
            session_.setPlacement(*shown_, placement);
    });
    connect(preview_, &PreviewWidget::cropAllAsked, this, [this] {
        if (shown_)
            session_.cropAllAs(*shown_);
    });
    connect(preview_, &PreviewWidget::photoChosen, this, [this](size_t place) {
        currentPlace_ = place;
        followed_ = 0;
        refresh();
    });
    connect(preview_, &PreviewWidget::damageFound, this,
            [this](const QString& path, int page) { session_.noteDamage(path, page); });
    connect(preview_, &PreviewWidget::failed, this, &PreviewSide::failed);
}

void PreviewSide::refresh()
{
    const std::vector<Photo>& photos = session_.photos();
    // Kept: what is told of the photo that is shown may have them planned again.
    const std::shared_ptr<const SheetPlan> plan = session_.sheetPlan();
    const std::vector<Sheet>& sheets = plan->sheets;
    pager_->setVisible(sheets.size() > 1);
    shown_.reset();
    if (strip_)
        strip_->refresh();
    showStrip();
    if (sheets.empty()) {
        preview_->showText(!session_.hasPhotos()     ? tr("Reading the photo...")
                           : photos.empty()          ? tr("There is no photo to print.")
                           : plan->problem.isEmpty() ? tr("No page is chosen.")
                                                     : plan->problem);
        return;
    }
    showPlace(sheets);
}

std::optional<size_t> PreviewSide::placeOf(quint64 id) const
{
    const auto found = std::ranges::find(session_.photos(), id, &Photo::id);
    return id == 0 || found == session_.photos().end()
               ? std::nullopt
               : std::optional(size_t(found - session_.photos().begin()));
}

// What the user looks at stays in sight, wherever another order or another layout puts it.
void PreviewSide::showPlace(const std::vector<Sheet>& sheets)
{
    current_ = std::clamp(current_, 0, int(sheets.size()) - 1);
    const std::optional<size_t> followed = placeOf(followed_);
    const auto isThere = [&](const PlacedPhoto& placed) { return placed.photo == *followed; };
    const std::vector<PlacedPhoto>& here = sheets[size_t(current_)].photos;
    const bool isHere = !followed || (currentPlace_ < here.size() && isThere(here[currentPlace_]));
    if (!isHere) {
        const auto sheet = std::ranges::find_if(
            sheets, [&](const Sheet& each) { return std::ranges::any_of(each.photos, isThere); });
        if (sheet == sheets.end() && followed_ == asked_) {
            showAside(*followed);
            return;
        }
        if (sheet != sheets.end()) {
            current_ = int(sheet - sheets.begin());
            currentPlace_ = size_t(std::ranges::find_if(sheet->photos, isThere) - sheet->photos.begin());
        }
    }
    showSheet(sheets[size_t(current_)], sheets.size());
}

void PreviewSide::showBlank(const BlankSheet& sheet)
{
    preview_->showSheet(sheet);
    pager_->hide();
}

void PreviewSide::showSheet(const Sheet& sheet, size_t count)
{
    currentPlace_ = std::min(currentPlace_, sheet.photos.size() - 1);
    const PlacedPhoto& placed = sheet.photos[currentPlace_];
    PreviewPage page;
    page.layout = placed.layout;
    page.sheet.sheet = sheet;
    page.sheet.caption = session_.page().sheets.caption;
    for (const PlacedPhoto& each : sheet.photos)
        page.sheet.photos.push_back(session_.photos()[each.photo]);
    page.current = currentPlace_;
    QString number = tr("%1 of %2").arg(QString::number(current_ + 1), QString::number(count));
    if (session_.isTwoSided())
        number += QLatin1Char(' ') + (current_ % 2 == 0 ? tr("(front)") : tr("(back)"));
    back_->setEnabled(current_ > 0);
    forward_->setEnabled(current_ + 1 < int(count));
    display(placed.photo, std::move(page), number);
}

// A photo that is on no sheet.
void PreviewSide::showAside(size_t photo)
{
    PreviewPage page;
    page.layout = session_.layoutFor(session_.photos()[photo]);
    display(photo, std::move(page), tr("Not printed"));
}

void PreviewSide::display(size_t place, PreviewPage page, const QString& number)
{
    const Photo& photo = session_.photos()[place];
    shown_ = place;
    page.photo = photo;
    page.resolution = session_.resolution();
    page.look = session_.look();
    const ColourSettings& chosen = session_.page().colours;
    page.screen = session_.colours().screenPlan(chosen, session_.model());
    page.proofWords = session_.colours().proofInWords(chosen, session_.model());
    page.overspill = session_.overspill();
    page.back = linesOnBack(session_.valuesToSend());
    preview_->showPage(page);
    const QString name = isolated(QFileInfo(photo.path).fileName(), kLongestFileName);
    const QString words =
        photo.pageNumber > 0 ? tr("%1, page %2").arg(name, QString::number(photo.pageNumber)) : name;
    setPlainText(pageNumber_, number + QStringLiteral("  ·  ") + words);
    // What is selected stays so as long as the same photo is looked at.
    if (strip_ && photo.id != std::exchange(shownId_, photo.id))
        strip_->setCurrent(place);
    // As long as photos come, the first sheet is what one looks at.
    if (session_.hasPhotos())
        followed_ = shownId_;
    Q_EMIT shown(photo, place);
}

void PreviewSide::showPhoto(size_t photo)
{
    if (photo >= session_.photos().size())
        return;
    asked_ = followed_ = session_.photos()[photo].id;
    refresh();
}

void PreviewSide::step(int by)
{
    current_ += by;
    currentPlace_ = 0;
    followed_ = 0;
    refresh();
}

void PreviewSide::startCropping()
{
    preview_->setCropping(true);
}

QList<QWidget*> PreviewSide::tabOrder() const
{
    QList<QWidget*> order = preview_->tabOrder();
    if (fold_)
        order += fold_;
    order += {back_, forward_};
    if (add_)
        order += add_;
    if (strip_)
        order += strip_->list();
    return order;
}

} // namespace halvern
