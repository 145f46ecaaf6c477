// SPDX-License-Identifier: MIT
#include "dialog/window/layout_page.h"

#include "dialog/options/custom_paper.h"
#include "dialog/session/used_paper.h"
#include "dialog/window/caption_row.h"
#include "dialog/window/keep_layout_row.h"
#include "dialog/window/measure_fields.h"
#include "dialog/window/photo_size_rows.h"
#include "platform/foundation/numbers.h"
#include "platform/foundation/units.h"
#include "platform/toolkit/plain_text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <cmath>

namespace halvern {

namespace {

// No id of a layout, and no measures.
const QString kTable = QStringLiteral("\ntable");
const QString kEach = QStringLiteral("\neach");

} // namespace

LayoutPage::LayoutPage(DialogSession& session, QWidget* parent)
    : QWidget(parent),
      session_(session),
      form_(new QFormLayout(this)),
      layout_(new QComboBox(this)),
      rows_(makeNumberField(QStringLiteral("layoutRows"), tr("Rows"), kMostRows, this)),
      columns_(makeNumberField(QStringLiteral("layoutColumns"), tr("Columns"), kMostRows, this)),
      eachWidth_(makeLengthField(QStringLiteral("eachWidth"), tr("Width of each photo"), kMostPhoto, this)),
      eachHeight_(
          makeLengthField(QStringLiteral("eachHeight"), tr("Height of each photo"), kMostPhoto, this)),
      repeats_(new QCheckBox(tr("&Each photo fills its own sheet"), this)),
      size_(new PhotoSizeRow(this)),
      place_(new PhotoPlaceRow(this)),
      margin_(makeLengthField(QStringLiteral("sheetMargin"), tr("Margin of the sheet"), kMostMargin, this)),
      border_(makeLengthField(QStringLiteral("photoBorder"), tr("White border"), kMostBorder, this)),
      line_(new QCheckBox(tr("Thin l&ine"), this)),
      cutMarks_(new QCheckBox(tr("Cu&t marks"), this)),
      caption_(new CaptionRow(this)),
      copies_(
          makeNumberField(QStringLiteral("photoCopies"), tr("Copies of this photo"), kMostPhotoCopies, this)),
      crop_(new QPushButton(tr("Crop..."), this)),
      cropAll_(new QPushButton(tr("Same Crop for All"), this)),
      keep_(new KeepLayoutRow(session, this)),
      problem_(new QLabel(this)),
      length_(new QPushButton(this))
{
    setObjectName(QStringLiteral("layoutPage"));
    form_->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form_->setRowWrapPolicy(QFormLayout::DontWrapRows);
    form_->setVerticalSpacing(14);
    form_->setHorizontalSpacing(14);
    addRow(tr("&Layout:"), makeLayoutRow(), layout_);
    addRow(tr("Photo si&ze:"), size_, size_->first());
    addRow(tr("Pl&ace:"), place_, place_->first());
    addRow(tr("&Margin:"), margin_, margin_);
    auto* around = new QWidget(this);
    QHBoxLayout* row = rowIn(around);
    row->addWidget(border_);
    row->addWidget(line_);
    row->addWidget(cutMarks_);
    row->addStretch();
    addRow(tr("White &border:"), around, border_);
    addRow(tr("&Caption:"), caption_, caption_->first());
    photoRow_ = makePhotoRow();
    addRow(tr("T&his photo:"), photoRow_, copies_);
    addRow(tr("As my la&yout:"), keep_, keep_->first());
    listLayouts();
    connectControls();
    refresh();
}

void LayoutPage::addRow(const QString& text, QWidget* field, QWidget* buddy)
{
    auto* label = new QLabel(this);
    setPlainText(label, text);
    label->setBuddy(buddy);
    form_->addRow(label, field);
}

QWidget* LayoutPage::makeLayoutRow()
{
    layout_->setObjectName(QStringLiteral("layout"));
    layout_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    layout_->setMinimumContentsLength(20);
    setPlainName(layout_, tr("Layout"));
    repeats_->setObjectName(QStringLiteral("layoutRepeats"));
    problem_->setObjectName(QStringLiteral("layoutProblem"));
    problem_->setWordWrap(true);
    problem_->hide();
    auto* box = new QWidget(this);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);
    column->addWidget(layout_);
    column->addWidget(makeTableRow());
    each_ = new QWidget(box);
    QHBoxLayout* row = rowIn(each_);
    row->addWidget(eachWidth_);
    row->addWidget(new QLabel(QStringLiteral("\u00d7"), each_));
    row->addWidget(eachHeight_);
    row->addStretch();
    column->addWidget(each_);
    length_->setObjectName(QStringLiteral("usedLength"));
    length_->setAutoDefault(false);
    column->addWidget(length_, 0, Qt::AlignLeading);
    column->addWidget(repeats_);
    column->addWidget(problem_);
    return box;
}

QWidget* LayoutPage::makeTableRow()
{
    table_ = new QWidget(this);
    QHBoxLayout* row = rowIn(table_);
    row->addWidget(rows_);
    row->addWidget(new QLabel(tr("rows of"), table_));
    row->addWidget(columns_);
    row->addStretch();
    return table_;
}

QWidget* LayoutPage::makePhotoRow()
{
    crop_->setObjectName(QStringLiteral("crop"));
    cropAll_->setObjectName(QStringLiteral("cropAllAsThis"));
    copies_->setSuffix(tr(" copies"));
    for (QPushButton* button : {crop_, cropAll_})
        button->setAutoDefault(false);
    auto* box = new QWidget(this);
    QHBoxLayout* row = rowIn(box);
    row->addWidget(copies_);
    row->addWidget(crop_);
    row->addWidget(cropAll_);
    row->addStretch();
    return box;
}

void LayoutPage::connectControls()
{
    connect(layout_, &QComboBox::activated, this, &LayoutPage::chooseLayout);
    for (QSpinBox* field : {rows_, columns_})
        connect(field, &QSpinBox::valueChanged, this, &LayoutPage::chooseMeasures);
    for (QDoubleSpinBox* field : {eachWidth_, eachHeight_})
        connect(field, &QDoubleSpinBox::valueChanged, this, &LayoutPage::chooseMeasures);
    for (QCheckBox* box : {repeats_, line_, cutMarks_})
        connect(box, &QCheckBox::clicked, this, &LayoutPage::change);
    for (QDoubleSpinBox* field : {margin_, border_})
        connect(field, &QDoubleSpinBox::valueChanged, this, &LayoutPage::change);
    connect(size_, &PhotoSizeRow::chosen, this, [this] {
        PageSettings page = session_.page();
        size_->take(page);
        session_.changeSheets(page);
    });
    connect(place_, &PhotoPlaceRow::chosen, this, &LayoutPage::change);
    connect(caption_, &CaptionRow::changed, this, &LayoutPage::change);
    connect(copies_, &QSpinBox::valueChanged, this, &LayoutPage::setPlacement);
    connect(crop_, &QPushButton::clicked, this, &LayoutPage::cropAsked);
    connect(cropAll_, &QPushButton::clicked, this, [this] {
        if (photo_ < session_.photos().size())
            session_.cropAllAs(photo_);
    });
    connect(keep_, &KeepLayoutRow::layoutsChanged, this, &LayoutPage::listLayouts);
    connect(keep_, &KeepLayoutRow::told, this, &LayoutPage::told);
    connect(length_, &QPushButton::clicked, this, [this] {
        if (const std::optional<QSizeF> paper = usedPaper(session_))
            session_.changeOption(QStringLiteral("PageSize"), customKeyword(*paper));
    });
    connect(&session_, &DialogSession::photosChanged, this, &LayoutPage::refresh);
}

void LayoutPage::listLayouts()
{
    const QSignalBlocker quiet(layout_);
    layout_->clear();
    layout_->addItem(tr("One photo on each page"), QString());
    bool isOwn = false;
    for (const Layout& layout : session_.layouts().layouts()) {
        if (layout.isOwn && !isOwn)
            layout_->insertSeparator(layout_->count());
        isOwn = layout.isOwn;
        layout_->addItem(itemText(layout.name), layout.id);
    }
    layout_->insertSeparator(layout_->count());
    layout_->addItem(tr("Rows and columns"), kTable);
    layout_->addItem(tr("Photos of one size"), kEach);
}

void LayoutPage::setPhoto(size_t photo)
{
    photo_ = photo;
    refreshPhoto();
}

void LayoutPage::refresh()
{
    isRefreshing_ = true;
    const PageSettings& page = session_.page();
    const SheetSettings& sheets = page.sheets;
    const std::optional<Layout> layout = session_.layouts().find(sheets.layout);
    int row = layout_->findData(sheets.layout);
    const bool isMeasured = row < 0 && layout;
    if (isMeasured)
        row = layout_->findData(layout->kind == LayoutKind::grid ? kTable : kEach);
    layout_->setCurrentIndex(row);
    const bool isSingle = layout && layout->kind == LayoutKind::single;
    table_->setVisible(isMeasured && layout->kind == LayoutKind::grid);
    each_->setVisible(isMeasured && layout->kind == LayoutKind::size);
    if (isMeasured) {
        rows_->setValue(layout->rows);
        columns_->setValue(layout->columns);
        eachWidth_->setValue(layout->photo.width() / lengthUnit());
        eachHeight_->setValue(layout->photo.height() / lengthUnit());
    }
    repeats_->setVisible(!isSingle && layout && layout->kind != LayoutKind::pack);
    repeats_->setChecked(sheets.repeats);
    form_->setRowVisible(size_, isSingle);
    form_->setRowVisible(place_, isSingle && !sheets.photo.isEmpty());
    form_->setRowVisible(keep_, !isSingle && layout);
    keep_->setForgets(layout && layout->isOwn);
    size_->setPage(page);
    place_->setCorner(sheets.corner);
    margin_->setValue(sheets.margin / lengthUnit());
    border_->setValue(sheets.border / lengthUnit());
    line_->setChecked(sheets.hasLine);
    cutMarks_->setChecked(sheets.hasCutMarks);
    caption_->setCaption(sheets.caption);
    const QString problem = session_.photos().empty() ? QString() : session_.sheetPlan()->problem;
    const bool isDark = palette().color(QPalette::Window).lightness() < 128;
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, isDark ? QColor(255, 150, 110) : QColor(170, 60, 10));
    problem_->setPalette(colours);
    setPlainText(problem_, problem);
    problem_->setVisible(!problem.isEmpty());
    const std::optional<QSizeF> paper = usedPaper(session_);
    length_->setVisible(paper.has_value());
    const int millimetres = paper ? int(std::ceil(paper->height() / kPointsPerMillimetre)) : 0;
    length_->setText( // plain: a number
        tr("Make the page %1 mm long, as the photos need").arg(millimetres));
    isRefreshing_ = false;
    refreshPhoto();
}

void LayoutPage::refreshPhoto()
{
    const bool wasRefreshing = std::exchange(isRefreshing_, true);
    const bool isThere = photo_ < session_.photos().size();
    form_->setRowVisible(photoRow_, isThere);
    cropAll_->setVisible(session_.photos().size() > 1);
    if (isThere) {
        const int copies = session_.photos()[photo_].placement.copies;
        copies_->setSuffix(copies == 1 ? tr(" copy") : tr(" copies"));
        copies_->setValue(copies);
    }
    isRefreshing_ = wasRefreshing;
}

void LayoutPage::chooseLayout()
{
    const QString id = layout_->currentData().toString();
    if (id == kTable)
        session_.chooseLayout(QStringLiteral("2x2"));
    else if (id == kEach)
        session_.chooseLayout(QStringLiteral("%1x%2mm").arg(shortestDouble(kUsualPhoto.width()),
                                                            shortestDouble(kUsualPhoto.height())));
    else
        session_.chooseLayout(id);
}

// What is set beside the measures stays.
void LayoutPage::chooseMeasures()
{
    if (isRefreshing_)
        return;
    PageSettings page = session_.page();
    if (layout_->currentData().toString() == kTable)
        page.sheets.layout = QStringLiteral("%1x%2").arg(rows_->value()).arg(columns_->value());
    else
        page.sheets.layout =
            QStringLiteral("%1x%2mm").arg(shortestDouble(eachWidth_->value() * lengthUnit()),
                                          shortestDouble(eachHeight_->value() * lengthUnit()));
    if (session_.layouts().find(page.sheets.layout))
        session_.changeSheets(page);
    else
        refresh();
}

void LayoutPage::change()
{
    if (isRefreshing_)
        return;
    PageSettings page = session_.page();
    SheetSettings& sheets = page.sheets;
    sheets.repeats = repeats_->isChecked();
    sheets.hasLine = line_->isChecked();
    sheets.hasCutMarks = cutMarks_->isChecked();
    sheets.margin = margin_->value() * lengthUnit();
    sheets.border = border_->value() * lengthUnit();
    sheets.caption = caption_->caption();
    sheets.corner = place_->corner();
    session_.changeSheets(page);
}

void LayoutPage::setPlacement(int copies)
{
    if (isRefreshing_ || photo_ >= session_.photos().size())
        return;
    PhotoPlacement placement = session_.photos()[photo_].placement;
    placement.copies = copies;
    session_.setPlacement(photo_, placement);
}

} // namespace halvern
