// SPDX-License-Identifier: MIT
#include "dialog/window/panel_deck.h"

#include "dialog/window/job_page.h"
#include "dialog/window/layout_page.h"
#include "dialog/window/option_finder.h"
#include "dialog/window/options_page.h"
#include "dialog/window/paper_page.h"
#include "dialog/window/photo_page.h"
#include "dialog/window/printer_page.h"
#include "dialog/window/summary_page.h"
#include "platform/toolkit/plain_text.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStackedLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <map>

namespace halvern {

namespace {

const QString kPage = QStringLiteral("page");
const QString kOptions = QStringLiteral("options");
const QString kJob = QStringLiteral("job");
const QString kLayout = QStringLiteral("layout");
const QString kPhoto = QStringLiteral("photo");
const QString kPrinter = QStringLiteral("printer");
const QString kSummary = QStringLiteral("summary");
const QString kPreview = QStringLiteral("preview");

// The list of pages is as wide as its longest title wants it, within these.
constexpr int kLeastListWidth = 146;
constexpr int kMostListWidth = 200;
// Wide enough for the pages that photographers use most, so that the preview keeps its size between them.
constexpr int kUsualPageWidth = 502;
constexpr int kTitleMargin = 9;
constexpr int kSpacing = 14;

// Leaves a little room before the titles. One for all: each icon's picture gets a place in the toolkit's
// cache.
const QIcon& indent()
{
    static const QIcon icon = [] {
        QPixmap nothing(4, 4);
        nothing.fill(Qt::transparent);
        return QIcon(nothing);
    }();
    return icon;
}

// The controls of a page by lines. What stands beside each other is not aligned to the dot: a line is as high
// as half a text.
QList<QWidget*> inReadingOrder(QWidget* page)
{
    std::multimap<int, QWidget*> byHeight;
    const auto centre = [page](const QWidget* widget) {
        return widget->mapTo(page, widget->rect().center());
    };
    for (QWidget* widget : page->findChildren<QWidget*>()) {
        if (widget->isVisible() && widget->focusPolicy() != Qt::NoFocus && !widget->focusProxy())
            byHeight.emplace(centre(widget).y(), widget);
    }
    const bool isMirrored = page->layoutDirection() == Qt::RightToLeft;
    QList<QWidget*> order;
    while (!byHeight.empty()) {
        const auto end = byHeight.upper_bound(byHeight.begin()->first + page->fontMetrics().height() / 2);
        std::multimap<int, QWidget*> line;
        for (auto next = byHeight.begin(); next != end; ++next)
            line.emplace(centre(next->second).x() * (isMirrored ? -1 : 1), next->second);
        for (const auto& [across, widget] : line)
            order.append(widget);
        byHeight.erase(byHeight.begin(), end);
    }
    return order;
}

} // namespace

PanelDeck::PanelDeck(DialogSession& session, QWidget* parent)
    : QWidget(parent),
      session_(session),
      finder_(new OptionFinder(
          session, [this] { return searchPages(); }, this)),
      list_(new QListWidget(this)),
      area_(new QScrollArea(this)),
      empty_(new QWidget(this)),
      page_(new PaperPage(session, this)),
      options_(new OptionsPage(session, this)),
      layout_(session.document() ? nullptr : new LayoutPage(session, this)),
      job_(new JobPage(session, this)),
      photo_(new PhotoPage(this)),
      printer_(new PrinterPage(session, this)),
      summary_(new SummaryPage(session, this))
{
    list_->setObjectName(QStringLiteral("pageList"));
    list_->setAccessibleName(tr("Pages of options"));
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->setSpacing(2);
    list_->setIconSize(QSize(4, 4));
    area_->setObjectName(QStringLiteral("pageArea"));
    area_->setWidgetResizable(true);
    area_->setFrameShape(QFrame::NoFrame);
    area_->viewport()->setAutoFillBackground(false);
    for (QWidget* page : {static_cast<QWidget*>(page_), static_cast<QWidget*>(options_),
                          static_cast<QWidget*>(job_), static_cast<QWidget*>(photo_),
                          static_cast<QWidget*>(printer_), static_cast<QWidget*>(summary_), empty_})
        page->hide();
    if (layout_) {
        layout_->hide();
        connect(layout_, &LayoutPage::cropAsked, this, &PanelDeck::cropAsked);
        connect(layout_, &LayoutPage::told, this, &PanelDeck::told);
    }
    layOut();
    setFocusProxy(list_);
    connect(list_, &QListWidget::currentRowChanged, this, &PanelDeck::showRow);
    connect(finder_, &OptionFinder::searching, this,
            [this](bool isSearching) { stack_->setCurrentIndex(isSearching ? 1 : 0); });
    connect(finder_, &OptionFinder::chosen, this, &PanelDeck::go);
    rebuild();
}

// What a search has found takes the pages' place as long as it lasts.
void PanelDeck::layOut()
{
    auto* pages = new QWidget(this);
    auto* row = new QHBoxLayout(pages);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kSpacing);
    row->addWidget(list_);
    row->addWidget(area_, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(finder_);
    stack_ = new QStackedLayout;
    stack_->addWidget(pages);
    stack_->addWidget(finder_->results());
    column->addLayout(stack_, 1);
}

void PanelDeck::setPhoto(const Photo& photo, size_t place)
{
    photo_->setPhoto(photo);
    layout_->setPhoto(place);
}

void PanelDeck::startSearch()
{
    finder_->start();
}

QList<SearchPage> PanelDeck::searchPages() const
{
    QList<SearchPage> pages;
    for (int i = 0; i < list_->count(); ++i) {
        const QString identifier = list_->item(i)->data(Qt::UserRole).toString();
        SearchPage page{identifier, list_->item(i)->text()};
        if (identifier == kPage) {
            page.view = page_;
            page.keys = {QStringLiteral("PageSize")};
        } else if (identifier == kLayout) {
            page.view = layout_;
        } else if (identifier == kJob) {
            page.view = job_;
        } else if (identifier == kOptions) {
            page.keys = optionsWithoutPanel(session_);
        } else if (const Panel* panel = panelFor(identifier)) {
            page.keys = const_cast<Panel*>(panel)->supportedPPDOptionKeys();
        }
        pages.append(page);
    }
    return pages;
}

void PanelDeck::go(const SearchHit& hit)
{
    if (hit.page == OptionFinder::printersPage()) {
        session_.selectPrinter(hit.key);
        return;
    }
    if (!showPage(hit.page) || (hit.page == kOptions && options_->reveal(hit.key)))
        return;
    if (QWidget* control = findControl(*area_->widget(), hit.title)) {
        area_->ensureWidgetVisible(control);
        control->setFocus(Qt::OtherFocusReason);
        return;
    }
    list_->setFocus(Qt::OtherFocusReason);
}

Panel* PanelDeck::panelFor(const QString& identifier) const
{
    for (const std::shared_ptr<Panel>& panel : session_.panels()) {
        if (panel->panelKind() == identifier)
            return panel.get();
    }
    return nullptr;
}

void PanelDeck::addPage(const QString& identifier, const QString& title)
{
    auto* item = new QListWidgetItem(indent(), displayText(title), list_);
    item->setData(Qt::UserRole, identifier);
    // What the title wants, before a hint of our own replaces it.
    const QModelIndex index = list_->model()->index(list_->count() - 1, 0);
    const int wanted =
        list_->sizeHintForIndex(index).width() + 2 * (list_->spacing() + list_->frameWidth()) + kTitleMargin;
    list_->setFixedWidth(std::clamp(wanted, list_->minimumWidth(), kMostListWidth));
    item->setSizeHint(QSize(0, fontMetrics().height() + 14));
}

void PanelDeck::rebuild()
{
    const QString current =
        list_->currentItem() ? list_->currentItem()->data(Qt::UserRole).toString() : kPage;
    releasePanels();
    {
        const QSignalBlocker quiet(list_);
        list_->clear();
        list_->setFixedWidth(kLeastListWidth);
        addPage(kPage, tr("Page"));
        if (layout_)
            addPage(kLayout, tr("Layout"));
        for (const std::shared_ptr<Panel>& panel : session_.panels()) {
            const QString kind = panel->panelKind().value_or(QString());
            addPage(kind, panel->panelName().value_or(kind));
        }
        page_->refresh();
        options_->rebuild();
        if (!options_->isEmpty())
            addPage(kOptions, session_.hasCustomPanels() ? tr("More Options") : tr("Options"));
        job_->refresh();
        addPage(kJob, tr("Job"));
        if (!session_.document())
            addPage(kPhoto, tr("About the Photo"));
        addPage(kPrinter, tr("Printer"));
        addPage(kSummary, tr("Summary"));
        if (previewPage_)
            addPage(kPreview, tr("Preview"));
    }
    if (!showPage(current))
        showPage(kPage);
    finder_->searchAgain();
}

QStringList PanelDeck::identifiers() const
{
    QStringList all;
    for (int i = 0; i < list_->count(); ++i)
        all.append(list_->item(i)->data(Qt::UserRole).toString());
    return all;
}

QString PanelDeck::shownPage() const
{
    return identifiers().value(shownRow_);
}

bool PanelDeck::showPage(const QString& identifier)
{
    const int row = int(identifiers().indexOf(identifier));
    if (row < 0)
        return false;
    list_->setCurrentRow(row);
    showRow(row);
    return true;
}

bool PanelDeck::hideShownPanel()
{
    if (!shown_)
        return true;
    if (!shown_->shouldHide())
        return false;
    shown_ = nullptr;
    return true;
}

QWidget* PanelDeck::viewFor(const QString& identifier)
{
    if (identifier == kPage)
        return page_;
    if (identifier == kOptions)
        return options_;
    if (identifier == kLayout)
        return layout_;
    if (identifier == kJob)
        return job_;
    if (identifier == kPhoto)
        return photo_;
    if (identifier == kPrinter)
        return printer_;
    if (identifier == kSummary)
        return summary_;
    if (identifier == kPreview)
        return previewPage_;
    Panel* panel = panelFor(identifier);
    return panel ? panel->panelView() : nullptr;
}

void PanelDeck::showRow(int row)
{
    if (row == shownRow_ || row < 0)
        return;
    if (!hideShownPanel()) {
        const QSignalBlocker quiet(list_);
        list_->setCurrentRow(shownRow_);
        return;
    }
    shownRow_ = row;
    const QString identifier = list_->item(row)->data(Qt::UserRole).toString();
    QWidget* view = viewFor(identifier);
    takeShownView();
    if (Panel* panel = panelFor(identifier); panel && view) {
        shown_ = panel;
        panel->willShow();
    }
    if (identifier == kSummary)
        summary_->refresh();
    area_->setWidget(view ? view : empty_);
    area_->widget()->show();
    const int wanted = area_->widget()->minimumSizeHint().expandedTo(area_->widget()->minimumSize()).width();
    pageWidth_ = std::max(pageWidth_, wanted + area_->verticalScrollBar()->sizeHint().width());
    area_->verticalScrollBar()->setValue(0);
    nameArea(row, identifier);
    Q_EMIT pageShown();
}

// The keyboard stops at a page's controls, or, to scroll, at a page that has none.
void PanelDeck::nameArea(int row, const QString& identifier)
{
    setPlainName(area_, list_->item(row)->text());
    area_->setFocusPolicy(identifier == kSummary || identifier == kPhoto || identifier == kPrinter
                              ? Qt::StrongFocus
                              : Qt::NoFocus);
}

void PanelDeck::setPreviewPage(QWidget* preview)
{
    if (preview) {
        previewPage_ = preview;
        preview->setParent(this);
        preview->hide();
        addPage(kPreview, tr("Preview"));
        return;
    }
    const int row = int(identifiers().indexOf(kPreview));
    if (row < 0)
        return;
    if (row == shownRow_)
        showPage(kPage);
    previewPage_ = nullptr;
    delete list_->takeItem(row);
}

int PanelDeck::wantedWidth() const
{
    return list_->width() + kSpacing + std::max(kUsualPageWidth, pageWidth_);
}

QList<QWidget*> PanelDeck::tabOrder() const
{
    QList<QWidget*> order = finder_->tabOrder() << list_;
    if (area_->focusPolicy() != Qt::NoFocus)
        order.append(area_);
    return area_->widget() ? order + inReadingOrder(area_->widget()) : order;
}

void PanelDeck::releasePanels()
{
    hideShownPanel();
    shown_ = nullptr;
    shownRow_ = -1;
    takeShownView();
}

void PanelDeck::takeShownView()
{
    // A panel owns its view and must find it alive, so the area lets go of it; our own pages come back to us.
    QWidget* before = area_->takeWidget();
    if (!before)
        return;
    before->hide();
    if (before == page_ || before == options_ || before == layout_ || before == job_ || before == photo_ ||
        before == printer_ || before == summary_ || before == empty_ || before == previewPage_)
        before->setParent(this);
}

void PanelDeck::pausePanels()
{
    const PanelList pausing = session_.panels();
    for (const std::shared_ptr<Panel>& panel : pausing)
        panel->shouldHide();
}

void PanelDeck::resumePanel()
{
    if (shown_)
        shown_->willShow();
}

bool PanelDeck::showHelpOfShownPanel()
{
    return shown_ && !shown_->shouldShowHelp();
}

void PanelDeck::tellClosing(bool printing)
{
    if (toldClosing_)
        return;
    toldClosing_ = true;
    for (const std::shared_ptr<Panel>& panel : session_.panels())
        panel->printWindowWillClose(printing);
}

void PanelDeck::refresh()
{
    page_->refresh();
    if (layout_)
        layout_->refresh();
    job_->refresh();
    options_->setEnabled(session_.model() != nullptr);
    options_->refresh();
    if (area_->widget() == summary_)
        summary_->refresh();
}

} // namespace halvern
