// SPDX-License-Identifier: MIT
#include "dialog/window/preview_side.h"

#include "dialog/preview/preview_widget.h"
#include "dialog/session/dialog_session.h"
#include "dialog/session/sheet_words.h"
#include "dialog/window/photo_adding.h"
#include "platform/toolkit/plain_text.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace halvern {

namespace {

constexpr int kLongestName = 120;

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
    below->addWidget(pager_, 1);
    if (!session_.document())
        makeAddButton(below, window);
    column->addLayout(below);
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
    connect(adding_, &PhotoAdding::failed, this, &PreviewSide::failed);
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
        refresh();
    });
    connect(preview_, &PreviewWidget::damageFound, this,
            [this](const QString& path, int page) { session_.noteDamage(path, page); });
    connect(preview_, &PreviewWidget::failed, this, &PreviewSide::failed);
}

void PreviewSide::refresh()
{
    const std::vector<Photo>& photos = session_.photos();
    const SheetPlan plan = session_.sheetPlan();
    const std::vector<Sheet>& sheets = plan.sheets;
    pager_->setVisible(sheets.size() > 1);
    shown_.reset();
    if (sheets.empty()) {
        preview_->showText(!session_.hasPhotos()    ? tr("Reading the photo...")
                           : photos.empty()         ? tr("There is no photo to print.")
                           : plan.problem.isEmpty() ? tr("No page is chosen.")
                                                    : plan.problem);
        return;
    }
    current_ = std::clamp(current_, 0, int(sheets.size()) - 1);
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
    const Photo& photo = session_.photos()[placed.photo];
    shown_ = placed.photo;
    PreviewPage page;
    page.layout = placed.layout;
    page.photo = photo;
    page.resolution = session_.resolution();
    page.look = session_.look();
    page.sheet.sheet = sheet;
    page.sheet.caption = session_.page().sheets.caption;
    for (const PlacedPhoto& each : sheet.photos)
        page.sheet.photos.push_back(session_.photos()[each.photo]);
    page.current = currentPlace_;
    const ColourSettings& chosen = session_.page().colours;
    page.screen = session_.colours().screenPlan(chosen, session_.model());
    page.proofWords = session_.colours().proofInWords(chosen, session_.model());
    page.back = linesOnBack(session_.valuesToSend());
    preview_->showPage(page);
    tellNumber(photo, count);
    Q_EMIT shown(photo, placed.photo);
}

void PreviewSide::tellNumber(const Photo& photo, size_t count)
{
    const QString name = isolated(QFileInfo(photo.path).fileName(), kLongestName);
    const QString words =
        photo.pageNumber > 0 ? tr("%1, page %2").arg(name, QString::number(photo.pageNumber)) : name;
    QString number = tr("%1 of %2").arg(QString::number(current_ + 1), QString::number(count));
    if (session_.isTwoSided())
        number += QLatin1Char(' ') + (current_ % 2 == 0 ? tr("(front)") : tr("(back)"));
    setPlainText(pageNumber_, number + QStringLiteral("  ·  ") + words);
    back_->setEnabled(current_ > 0);
    forward_->setEnabled(current_ + 1 < int(count));
}

void PreviewSide::showPhoto(size_t photo)
{
    const SheetPlan plan = session_.sheetPlan();
    for (size_t i = 0; i < plan.sheets.size(); ++i) {
        const std::vector<PlacedPhoto>& placed = plan.sheets[i].photos;
        const auto found = std::ranges::find(placed, photo, &PlacedPhoto::photo);
        if (found == placed.end())
            continue;
        current_ = int(i);
        currentPlace_ = size_t(found - placed.begin());
        refresh();
        return;
    }
}

void PreviewSide::step(int by)
{
    current_ += by;
    currentPlace_ = 0;
    refresh();
}

void PreviewSide::startCropping()
{
    preview_->setCropping(true);
}

QList<QWidget*> PreviewSide::tabOrder() const
{
    QList<QWidget*> order{
        preview_, preview_->cropButton(), preview_->backButton(), preview_->zoomButton(), back_, forward_};
    if (add_)
        order += add_;
    return order;
}

} // namespace halvern
