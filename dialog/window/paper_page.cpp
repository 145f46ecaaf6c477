// SPDX-License-Identifier: MIT
#include "dialog/window/paper_page.h"

#include "dialog/options/ppd_keywords.h"
#include "dialog/window/choice_list.h"
#include "dialog/window/colour_row.h"
#include "dialog/window/custom_paper_row.h"
#include "dialog/window/page_range_row.h"
#include "dialog/window/paper_size_list.h"
#include "dialog/window/search_box.h"
#include "dialog/window/tray_rows.h"
#include "platform/foundation/units.h"
#include "platform/toolkit/choice_group.h"
#include "platform/toolkit/plain_text.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>

namespace halvern {

namespace {

constexpr int kLeastScale = 10; // percent
constexpr int kMostScale = 1000;

bool isSameRoom(const PaperRoom& a, const PaperRoom& b)
{
    return a.width == b.width && a.length == b.length && a.isRoll == b.isRoll;
}

bool hasPanelFor(const DialogSession& session, const QString& key)
{
    return std::ranges::any_of(session.panels(), [&](const std::shared_ptr<Panel>& panel) {
        return panel->supportedPPDOptionKeys().contains(key);
    });
}

} // namespace

PaperPage::PaperPage(DialogSession& session, QWidget* parent)
    : QWidget(parent),
      session_(session),
      form_(new QFormLayout(this)),
      paper_(new SearchBox(SearchBox::Rows::oneLine, tr("Search by name or measures"), this)),
      papers_(new PaperSizeList(paper_)),
      borderless_(new QCheckBox(tr("&Borderless"), this)),
      custom_(new CustomPaperRow(this)),
      turn_(new QButtonGroup(this)),
      scaling_(new QButtonGroup(this)),
      twoSided_(new QComboBox(this)),
      sides_(new ChoiceList(twoSided_)),
      trays_(new TrayRows(session, this)),
      pages_(new PageRangeRow(this)),
      colours_(new ColourRow(session, this))
{
    setObjectName(QStringLiteral("pagePage"));
    form_->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form_->setRowWrapPolicy(QFormLayout::DontWrapRows);
    form_->setVerticalSpacing(14);
    form_->setHorizontalSpacing(14);
    addRow(tr("P&aper size:"), makePaperRow(), paper_);
    form_->addRow(QString(), custom_);
    addRow(tr("Loaded:"), trays_, trays_);
    QWidget* turns = makeChoices(turn_, QStringLiteral("turn"),
                                 {{int(PageTurn::automatic), tr("As the photo")},
                                  {int(PageTurn::portrait), tr("Portrait")},
                                  {int(PageTurn::landscape), tr("Landscape")}});
    addRow(tr("Or&ientation:"), turns, turn_->button(int(PageTurn::automatic)));
    QWidget* scalings = makeChoices(scaling_, QStringLiteral("scaling"),
                                    {{int(Scaling::fit), tr("Fit the whole photo on the page")},
                                     {int(Scaling::fill), tr("Fill the page, cut what is over")},
                                     {int(Scaling::actualSize), tr("Actual size")}});
    addRow(tr("Photo si&ze:"), scalings, scaling_->button(int(Scaling::fit)));
    twoSided_->setObjectName(QStringLiteral("twoSided"));
    twoSided_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    twoSided_->setMinimumContentsLength(18);
    addRow(tr("&Two-sided:"), twoSided_, twoSided_);
    addRow(tr("Pa&ges:"), pages_, pages_->field());
    addRow(tr("Co&lors:"), colours_, colours_->field());
    connectControls();
    if (session_.document())
        arrangeForDocument(*session_.document(), scalings);
    refresh();
}

// Whoever makes the pages lays them out: what says how a photo lies on its page has no place here.
void PaperPage::arrangeForDocument(const BlindDocument& document, QWidget* scalings)
{
    turn_->button(int(PageTurn::automatic))->hide();
    form_->setRowVisible(scalings, false);
    if (document.isHere) {
        form_->setRowVisible(turn_->button(int(PageTurn::portrait))->parentWidget(), false);
    } else {
        scale_ = new QSpinBox(this);
        scale_->setObjectName(QStringLiteral("scale"));
        scale_->setRange(kLeastScale, kMostScale);
        scale_->setSuffix(tr(" %"));
        scale_->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
        addRow(tr("&Scale:"), scale_, scale_);
        connect(scale_, &QSpinBox::valueChanged, this, &PaperPage::choosePage);
    }
    pages_->setUncounted(document.hasCurrentPage, document.hasSelection);
}

QWidget* PaperPage::makePaperRow()
{
    paper_->setObjectName(QStringLiteral("paperSize"));
    paper_->setMinimumContentsLength(18);
    paper_->setForm(searchForm);
    paper_->setModel(papers_);
    setPlainName(paper_, tr("Paper size"));
    borderless_->setObjectName(QStringLiteral("borderless"));
    auto* box = new QWidget(this);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(10);
    row->addWidget(paper_, 1);
    row->addWidget(borderless_);
    return box;
}

void PaperPage::addRow(const QString& text, QWidget* field, QWidget* buddy)
{
    auto* label = new QLabel(this);
    setPlainText(label, text);
    label->setBuddy(buddy);
    setPlainName(field, QString(text).remove(QLatin1Char('&')).remove(QLatin1Char(':')));
    form_->addRow(label, field);
}

QWidget* PaperPage::makeChoices(QButtonGroup* group, const QString& name,
                                const QList<std::pair<int, QString>>& choices)
{
    auto* box = new ChoiceGroup(this);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 2, 0, 0);
    column->setSpacing(6);
    for (const auto& [id, text] : choices) {
        auto* button = new QRadioButton(text, box);
        button->setObjectName(QStringLiteral("%1%2").arg(name).arg(id));
        group->addButton(button, id);
        column->addWidget(button);
    }
    return box;
}

void PaperPage::connectControls()
{
    connect(paper_, &QComboBox::activated, this, &PaperPage::choosePaper);
    connect(borderless_, &QCheckBox::clicked, this, &PaperPage::chooseBorderless);
    connect(custom_, &CustomPaperRow::chosen, this, &PaperPage::chooseCustom);
    connect(custom_, &CustomPaperRow::photoLengthAsked, this, &PaperPage::makeAsLongAsPhoto);
    connect(custom_, &CustomPaperRow::keepAsked, this, [this](const QString& name, const QSizeF& points) {
        keepOwnPaper({name, points});
        listPapers();
        refresh();
    });
    connect(custom_, &CustomPaperRow::forgetAsked, this, [this](const QString& name) {
        forgetOwnPaper(name);
        listPapers();
        refresh();
    });
    connect(turn_, &QButtonGroup::idClicked, this, &PaperPage::choosePage);
    connect(scaling_, &QButtonGroup::idClicked, this, &PaperPage::choosePage);
    connect(twoSided_, &QComboBox::activated, this, [this] {
        session_.changeOption(twoSidedKey_, twoSided_->currentData());
        refreshTwoSided();
    });
    connect(pages_, &PageRangeRow::chosen, this, &PaperPage::choosePages);
    // Another printer's paper may come, or a roll go.
    connect(&session_, &DialogSession::offerChanged, this, &PaperPage::refresh);
    connect(&session_, &DialogSession::photosChanged, this, &PaperPage::refresh);
    connect(&session_, &DialogSession::reportChanged, this, &PaperPage::refresh);
}

void PaperPage::refresh()
{
    refreshPaper();
    refreshBorderless();
    refreshCustom();
    refreshTwoSided();
    trays_->refresh();
    form_->setRowVisible(trays_, !trays_->isEmpty());
    const PageSettings& page = session_.page();
    // Without a photo nothing is turned by it.
    const bool isUpright = page.turn == PageTurn::automatic && session_.document();
    turn_->button(int(isUpright ? PageTurn::portrait : page.turn))->setChecked(true);
    scaling_->button(int(page.scaling))->setChecked(true);
    const size_t count = session_.photos().size();
    form_->setRowVisible(pages_, count > 1 || !page.pages.ranges.isEmpty() || session_.document());
    if (scale_) {
        const QSignalBlocker quiet(scale_);
        scale_->setValue(page.scalePercent);
    }
    form_->setRowVisible(colours_, !session_.document());
    colours_->refresh();
    pages_->refresh(page.pages, count, session_.hasPhotos() ? session_.chosenPages().problem : QString());
}

void PaperPage::listPapers()
{
    const PpdModel* model = session_.model();
    std::vector<PaperSize> sizes = model ? paperSizes(*model) : std::vector<PaperSize>();
    lift(sizes, listedRoom_, listedRecent_);
    if (model)
        liftTrays(sizes, *model, listedTrays_);
    own_ = ownPapers();
    papers_->setSizes(std::move(sizes), own_, model ? paperLimits(model->file()) : std::nullopt);
}

void PaperPage::refreshPaper()
{
    const PpdModel* model = session_.model();
    paper_->setEnabled(model != nullptr);
    const std::shared_ptr<ppd_file_t> file = model ? model->sharedFile() : nullptr;
    const PaperRoom room = session_.chosenPaper();
    if (!file || listedFor_.lock() != file || !isSameRoom(room, listedRoom_) ||
        listedRecent_ != session_.recentPapers() || listedTrays_ != session_.trays()) {
        listedFor_ = file;
        listedRoom_ = room;
        listedRecent_ = session_.recentPapers();
        listedTrays_ = session_.trays();
        listPapers();
    }
    paper_->setCurrentIndex(
        papers_->rowOf(model ? model->value(kPageSize) : QString(), session_.trayInUse()));
    setPlainToolTip(paper_, paper_->currentText());
}

void PaperPage::refreshBorderless()
{
    const PpdModel* model = session_.model();
    const BorderlessSwitch state = model ? borderlessSwitch(*model, papers_->sizes()) : BorderlessSwitch();
    borderless_->setVisible(state.isKnown);
    borderless_->setEnabled(state.isPossible);
    borderless_->setChecked(state.isOn);
    setPlainDescription(
        borderless_, state.isPossible ? QString()
                                      : tr("The printer does not have this paper size both with and without "
                                           "a margin."));
}

void PaperPage::refreshCustom()
{
    const PpdModel* model = session_.model();
    const std::optional<PaperLimits> limits = model ? paperLimits(model->file()) : std::nullopt;
    const std::optional<QSizeF> points = model ? customMeasures(model->value(kPageSize)) : std::nullopt;
    form_->setRowVisible(custom_, limits && points);
    if (!limits || !points)
        return;
    custom_->show(*limits, *points);
    QString name;
    for (const OwnPaper& paper : own_) {
        if (customKeyword(paper.points) == customKeyword(*points))
            name = paper.name;
    }
    custom_->setKeptName(name);
    custom_->setPhotoLength(!session_.photos().empty(), listedRoom_.isRoll);
}

void PaperPage::refreshTwoSided()
{
    const PpdModel* model = session_.model();
    QString key = model ? duplexOption(model->file()) : QString();
    if (hasPanelFor(session_, key))
        key.clear();
    form_->setRowVisible(twoSided_, !key.isEmpty());
    if (key.isEmpty())
        return;
    const std::shared_ptr<ppd_file_t> file = model->sharedFile();
    if (twoSidedKey_ != key || sidesFor_.lock() != file)
        sides_->setChoices(model->option(key).choices);
    twoSidedKey_ = key;
    sidesFor_ = file;
    sides_->select(model->value(key));
}

// Somebody who prints without margins means the next size to be without them, too.
void PaperPage::choosePaper()
{
    const PpdModel* model = session_.model();
    const int row = paper_->currentIndex();
    if (!model || row < 0 || row >= papers_->rowCount())
        return;
    const PaperSize& size = papers_->sizes()[size_t(row)];
    if (size.tray >= 0) {
        session_.useTray(size.tray);
        refresh();
        return;
    }
    QString wanted = size.keyword;
    if (wanted == QLatin1StringView(kCustomRow)) {
        const std::optional<PaperLimits> limits = paperLimits(model->file());
        const QSizeF now = model->sheet().paper;
        wanted = limits ? customKeyword(now.expandedTo(limits->least).boundedTo(limits->most)) : QString();
    } else if (borderless_->isChecked() && !size.borderless.isEmpty()) {
        wanted = size.borderless;
    }
    session_.changeOption(kPageSize, wanted);
    refresh(); // a refused choice goes back
}

void PaperPage::chooseBorderless(bool isOn)
{
    if (const PpdModel* model = session_.model()) {
        const BorderlessSwitch state = borderlessSwitch(*model, papers_->sizes());
        session_.changeOption(state.key, isOn ? state.on : state.off);
    }
    refresh();
}

void PaperPage::chooseCustom(const QSizeF& points)
{
    session_.changeOption(kPageSize, customKeyword(points));
    refresh();
}

void PaperPage::makeAsLongAsPhoto(double width)
{
    const PpdModel* model = session_.model();
    const std::optional<PaperLimits> limits = model ? paperLimits(model->file()) : std::nullopt;
    const ChosenPages chosen = session_.chosenPages();
    if (!limits || chosen.pages.empty())
        return;
    const PageTurn turn = session_.page().turn;
    const QSizeF own = session_.photos()[chosen.pages.front()].ownSize;
    if (listedRoom_.isRoll && listedRoom_.width)
        width = *listedRoom_.width * kPointsPerMillimetre;
    const double height =
        heightForPhoto(width, turn == PageTurn::landscape ? own.transposed() : own, limits->margins);
    chooseCustom(QSizeF(width, height).expandedTo(limits->least).boundedTo(limits->most));
}

void PaperPage::choosePage()
{
    PageSettings page = session_.page();
    page.turn = PageTurn(turn_->checkedId());
    page.scaling = Scaling(scaling_->checkedId());
    if (scale_)
        page.scalePercent = scale_->value();
    session_.setPage(page);
}

void PaperPage::choosePages(const PageChoice& choice)
{
    PageSettings page = session_.page();
    page.pages = choice;
    session_.setPage(page);
}

} // namespace halvern
