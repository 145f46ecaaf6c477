// SPDX-License-Identifier: MIT
#include "dialog/window/layout_page.h"

#include "dialog/options/custom_paper.h"
#include "dialog/page/caption.h"
#include "platform/foundation/numbers.h"
#include "platform/foundation/units.h"
#include "platform/toolkit/plain_text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <cmath>

namespace halvern {

namespace {

// No id of a layout, and no measures.
const QString kTable = QStringLiteral("\ntable");
const QString kEach = QStringLiteral("\neach");
constexpr double kDefaultEach[] = {100.0, 150.0};
constexpr int kShortName = 12; // characters
constexpr double kSpare = 2.0; // points, for what is rounded on the way

enum class SizeKind { page, length, percent };

QHBoxLayout* rowIn(QWidget* box)
{
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    return row;
}

bool isMetric()
{
    return QLocale().measurementSystem() == QLocale::MetricSystem;
}

} // namespace

LayoutPage::LayoutPage(DialogSession& session, QWidget* parent)
    : QWidget(parent),
      session_(session),
      form_(new QFormLayout(this)),
      layout_(new QComboBox(this)),
      rows_(makeNumber(QStringLiteral("layoutRows"), tr("Rows"), kMostRows)),
      columns_(makeNumber(QStringLiteral("layoutColumns"), tr("Columns"), kMostRows)),
      eachWidth_(makeLength(QStringLiteral("eachWidth"), tr("Width of each photo"), kMostPhoto)),
      eachHeight_(makeLength(QStringLiteral("eachHeight"), tr("Height of each photo"), kMostPhoto)),
      repeats_(new QCheckBox(tr("&Each photo fills its own sheet"), this)),
      sizeKind_(new QComboBox(this)),
      width_(makeLength(QStringLiteral("photoWidth"), tr("Width of the photo"), kMostPhoto)),
      height_(makeLength(QStringLiteral("photoHeight"), tr("Height of the photo"), kMostPhoto)),
      percent_(new QDoubleSpinBox(this)),
      isPlaced_(new QCheckBox(tr("Away from the corner:"), this)),
      left_(makeLength(QStringLiteral("photoLeft"), tr("From the left"), kMostPhoto)),
      top_(makeLength(QStringLiteral("photoTop"), tr("From the top"), kMostPhoto)),
      margin_(makeLength(QStringLiteral("sheetMargin"), tr("Margin of the sheet"), kMostMargin)),
      border_(makeLength(QStringLiteral("photoBorder"), tr("White border"), kMostBorder)),
      line_(new QCheckBox(tr("Thin l&ine"), this)),
      cutMarks_(new QCheckBox(tr("Cu&t marks"), this)),
      caption_(new QLineEdit(this)),
      tokens_(new QComboBox(this)),
      copies_(makeNumber(QStringLiteral("photoCopies"), tr("Copies of this photo"), kMostPhotoCopies)),
      crop_(new QPushButton(tr("Crop..."), this)),
      cropAll_(new QPushButton(tr("Same Crop for All"), this)),
      name_(new QLineEdit(this)),
      keep_(new QPushButton(tr("&Keep"), this)),
      forget_(new QPushButton(tr("Forget"), this)),
      problem_(new QLabel(this)),
      length_(new QPushButton(this))
{
    setObjectName(QStringLiteral("layoutPage"));
    form_->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form_->setRowWrapPolicy(QFormLayout::DontWrapRows);
    form_->setVerticalSpacing(14);
    form_->setHorizontalSpacing(14);
    addRow(tr("&Layout:"), makeLayoutRow(), layout_);
    addRow(tr("Photo si&ze:"), makeSizeRow(), sizeKind_);
    addRow(tr("Pl&ace:"), makePlaceRow(), isPlaced_);
    addRow(tr("&Margin:"), margin_, margin_);
    auto* around = new QWidget(this);
    QHBoxLayout* row = rowIn(around);
    row->addWidget(border_);
    row->addWidget(line_);
    row->addWidget(cutMarks_);
    row->addStretch();
    addRow(tr("White &border:"), around, border_);
    addRow(tr("&Caption:"), makeCaptionRow(), caption_);
    photoRow_ = makePhotoRow();
    addRow(tr("T&his photo:"), photoRow_, copies_);
    keepRow_ = makeKeepRow();
    addRow(tr("As my la&yout:"), keepRow_, name_);
    listLayouts();
    connectControls();
    refresh();
}

QDoubleSpinBox* LayoutPage::makeLength(const QString& name, const QString& words, double most)
{
    auto* field = new QDoubleSpinBox(this);
    field->setObjectName(name);
    setPlainName(field, words);
    field->setRange(0.0, most / unit());
    field->setDecimals(isMetric() ? 1 : 2);
    field->setSingleStep(isMetric() ? 1.0 : 0.1);
    field->setSuffix(isMetric() ? tr(" mm") : tr(" in"));
    field->setKeyboardTracking(false);
    field->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    return field;
}

QSpinBox* LayoutPage::makeNumber(const QString& name, const QString& words, int most)
{
    auto* field = new QSpinBox(this);
    field->setObjectName(name);
    setPlainName(field, words);
    field->setRange(1, most);
    field->setKeyboardTracking(false);
    field->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    return field;
}

// Millimetres in what the user's country counts in.
double LayoutPage::unit() const
{
    return isMetric() ? 1.0 : kMillimetresPerInch;
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

QWidget* LayoutPage::makeSizeRow()
{
    sizeKind_->setObjectName(QStringLiteral("photoSizeKind"));
    sizeKind_->addItem(tr("As large as the page"), int(SizeKind::page));
    sizeKind_->addItem(tr("In"), int(SizeKind::length));
    sizeKind_->addItem(tr("Of its own size"), int(SizeKind::percent));
    setPlainName(sizeKind_, tr("Photo size"));
    percent_->setObjectName(QStringLiteral("photoPercent"));
    percent_->setRange(kLeastPercent, kMostPercent);
    percent_->setDecimals(1);
    percent_->setSuffix(tr(" %"));
    percent_->setKeyboardTracking(false);
    setPlainName(percent_, tr("Percent of its own size"));
    auto* box = new QWidget(this);
    QHBoxLayout* row = rowIn(box);
    row->addWidget(sizeKind_);
    size_ = new QWidget(box);
    QHBoxLayout* lengths = rowIn(size_);
    lengths->addWidget(width_);
    lengths->addWidget(new QLabel(QStringLiteral("\u00d7"), size_));
    lengths->addWidget(height_);
    row->addWidget(size_);
    row->addWidget(percent_);
    row->addStretch();
    return box;
}

QWidget* LayoutPage::makePlaceRow()
{
    isPlaced_->setObjectName(QStringLiteral("photoPlaced"));
    isPlaced_->setToolTip(tr("Without it the photo is in the middle of the sheet"));
    place_ = new QWidget(this);
    QHBoxLayout* row = rowIn(place_);
    row->addWidget(isPlaced_);
    row->addWidget(left_);
    row->addWidget(top_);
    row->addStretch();
    return place_;
}

QWidget* LayoutPage::makeCaptionRow()
{
    caption_->setObjectName(QStringLiteral("caption"));
    caption_->setMaxLength(int(kLongestCaption));
    caption_->setPlaceholderText(tr("None; for example [C]  [F]"));
    caption_->setClearButtonEnabled(true);
    setPlainName(caption_, tr("Caption under each photo"));
    tokens_->setObjectName(QStringLiteral("captionTokens"));
    for (const CaptionToken& row : kCaptionTokens)
        tokens_->addItem(itemText(QCoreApplication::translate("Caption", row.name)),
                         QString::fromLatin1(row.token));
    setPlainName(tokens_, tr("Placeholder"));
    auto* insert = new QPushButton(tr("I&nsert"), this);
    insert->setObjectName(QStringLiteral("insertToken"));
    insert->setAutoDefault(false);
    connect(insert, &QPushButton::clicked, this, [this] {
        caption_->insert(tokens_->currentData().toString());
        change();
        caption_->setFocus(Qt::OtherFocusReason);
    });
    auto* box = new QWidget(this);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);
    column->addWidget(caption_);
    auto* row = new QHBoxLayout;
    row->addWidget(tokens_, 1);
    row->addWidget(insert);
    column->addLayout(row);
    return box;
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

QWidget* LayoutPage::makeKeepRow()
{
    name_->setObjectName(QStringLiteral("layoutName"));
    name_->setPlaceholderText(tr("Name, to find it again"));
    name_->setMinimumWidth(fontMetrics().averageCharWidth() * kShortName);
    setPlainName(name_, tr("Name of the layout"));
    keep_->setObjectName(QStringLiteral("keepLayout"));
    forget_->setObjectName(QStringLiteral("forgetLayout"));
    for (QPushButton* button : {keep_, forget_})
        button->setAutoDefault(false);
    auto* box = new QWidget(this);
    QHBoxLayout* row = rowIn(box);
    row->addWidget(name_, 1);
    row->addWidget(keep_);
    row->addWidget(forget_);
    return box;
}

void LayoutPage::connectControls()
{
    connect(layout_, &QComboBox::activated, this, &LayoutPage::chooseLayout);
    for (QSpinBox* field : {rows_, columns_})
        connect(field, &QSpinBox::valueChanged, this, &LayoutPage::chooseMeasures);
    for (QDoubleSpinBox* field : {eachWidth_, eachHeight_})
        connect(field, &QDoubleSpinBox::valueChanged, this, &LayoutPage::chooseMeasures);
    for (QCheckBox* box : {repeats_, line_, cutMarks_, isPlaced_})
        connect(box, &QCheckBox::clicked, this, &LayoutPage::change);
    for (QDoubleSpinBox* field : {left_, top_, margin_, border_})
        connect(field, &QDoubleSpinBox::valueChanged, this, &LayoutPage::change);
    connect(sizeKind_, &QComboBox::activated, this, &LayoutPage::chooseSize);
    for (QDoubleSpinBox* field : {width_, height_, percent_})
        connect(field, &QDoubleSpinBox::valueChanged, this, &LayoutPage::chooseSize);
    connect(caption_, &QLineEdit::textChanged, this, &LayoutPage::change);
    connect(copies_, &QSpinBox::valueChanged, this, &LayoutPage::setPlacement);
    connect(crop_, &QPushButton::clicked, this, &LayoutPage::cropAsked);
    connect(cropAll_, &QPushButton::clicked, this, [this] {
        if (photo_ < session_.photos().size())
            session_.cropAllAs(photo_);
    });
    connect(keep_, &QPushButton::clicked, this, &LayoutPage::keepLayout);
    connect(name_, &QLineEdit::returnPressed, this, &LayoutPage::keepLayout);
    connect(name_, &QLineEdit::textChanged, this,
            [this](const QString& text) { keep_->setEnabled(!text.trimmed().isEmpty()); });
    connect(length_, &QPushButton::clicked, this, [this] {
        if (const std::optional<QSizeF> paper = usedPaper())
            session_.changeOption(QStringLiteral("PageSize"), customKeyword(*paper));
    });
    connect(forget_, &QPushButton::clicked, this, &LayoutPage::forgetLayout);
    connect(&session_, &DialogSession::photosChanged, this, &LayoutPage::refresh);
    keep_->setEnabled(false);
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
        eachWidth_->setValue(layout->photo.width() / unit());
        eachHeight_->setValue(layout->photo.height() / unit());
    }
    repeats_->setVisible(!isSingle && layout && layout->kind != LayoutKind::pack);
    repeats_->setChecked(sheets.repeats);
    form_->setRowVisible(sizeKind_->parentWidget(), isSingle);
    form_->setRowVisible(place_, isSingle && !sheets.photo.isEmpty());
    form_->setRowVisible(keepRow_, !isSingle && layout);
    forget_->setVisible(layout && layout->isOwn);
    refreshSize(page);
    margin_->setValue(sheets.margin / unit());
    border_->setValue(sheets.border / unit());
    line_->setChecked(sheets.hasLine);
    cutMarks_->setChecked(sheets.hasCutMarks);
    if (caption_->text() != sheets.caption)
        caption_->setText(sheets.caption); // plain: a field holds a value
    const QString problem = session_.photos().empty() ? QString() : session_.sheetPlan()->problem;
    const bool isDark = palette().color(QPalette::Window).lightness() < 128;
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, isDark ? QColor(255, 150, 110) : QColor(170, 60, 10));
    problem_->setPalette(colours);
    setPlainText(problem_, problem);
    problem_->setVisible(!problem.isEmpty());
    const std::optional<QSizeF> paper = usedPaper();
    length_->setVisible(paper.has_value());
    const int millimetres = paper ? int(std::ceil(paper->height() / kPointsPerMillimetre)) : 0;
    length_->setText( // plain: a number
        tr("Make the page %1 mm long, as the photos need").arg(millimetres));
    isRefreshing_ = false;
    refreshPhoto();
}

// The shortest paper that takes all photos side by side; nothing where the printer cannot cut it so, or where
// it is so already.
std::optional<QSizeF> LayoutPage::usedPaper() const
{
    const PpdModel* model = session_.model();
    const std::optional<PaperLimits> limits = model ? paperLimits(model->file()) : std::nullopt;
    const std::optional<Layout> layout = session_.layouts().find(session_.page().sheets.layout);
    if (!limits || !layout || layout->kind != LayoutKind::pack)
        return std::nullopt;
    const std::shared_ptr<const SheetPlan> plan = session_.sheetPlan();
    if (plan->sheets.size() != 1 || plan->sheets.front().page.turned)
        return std::nullopt;
    const Sheet& sheet = plan->sheets.front();
    const QSizeF page = sheet.page.page;
    const SheetSettings& settings = session_.page().sheets;
    // The margin may hold the cut marks, and what the printer leaves free may not.
    const double free = std::max(page.height() - sheet.page.imageable.bottom(), limits->margins.bottom());
    const double marks = settings.hasCutMarks ? kCutMarkReach * kPointsPerMillimetre : 0.0;
    const double below = std::max(free + marks, settings.margin * kPointsPerMillimetre);
    QSizeF paper(page.width(), sheet.usedLength + below + kSpare);
    paper = paper.expandedTo(limits->least).boundedTo(limits->most);
    const bool isShorter = paper.height() < page.height() - 2.0 * kSpare && paper.width() == page.width();
    return isShorter ? std::optional(paper) : std::nullopt;
}

void LayoutPage::refreshSize(const PageSettings& page)
{
    const SheetSettings& sheets = page.sheets;
    const SizeKind kind = page.scaling == Scaling::actualSize ? SizeKind::percent
                          : sheets.photo.isEmpty()            ? SizeKind::page
                                                              : SizeKind::length;
    sizeKind_->setCurrentIndex(sizeKind_->findData(int(kind)));
    size_->setVisible(kind == SizeKind::length);
    percent_->setVisible(kind == SizeKind::percent);
    if (kind == SizeKind::length) {
        width_->setValue(sheets.photo.width() / unit());
        height_->setValue(sheets.photo.height() / unit());
    }
    percent_->setValue(sheets.percent);
    isPlaced_->setChecked(sheets.corner.has_value());
    left_->setEnabled(sheets.corner.has_value());
    top_->setEnabled(sheets.corner.has_value());
    if (sheets.corner) {
        left_->setValue(sheets.corner->x() / unit());
        top_->setValue(sheets.corner->y() / unit());
    }
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
        session_.chooseLayout(
            QStringLiteral("%1x%2mm").arg(shortestDouble(kDefaultEach[0]), shortestDouble(kDefaultEach[1])));
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
        page.sheets.layout = QStringLiteral("%1x%2mm").arg(shortestDouble(eachWidth_->value() * unit()),
                                                           shortestDouble(eachHeight_->value() * unit()));
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
    sheets.margin = margin_->value() * unit();
    sheets.border = border_->value() * unit();
    sheets.caption = caption_->text();
    sheets.corner.reset();
    if (isPlaced_->isChecked())
        sheets.corner = QPointF(left_->value(), top_->value()) * unit();
    session_.changeSheets(page);
}

void LayoutPage::chooseSize()
{
    if (isRefreshing_)
        return;
    PageSettings page = session_.page();
    const auto kind = SizeKind(sizeKind_->currentData().toInt());
    if (kind == SizeKind::percent)
        page.scaling = Scaling::actualSize;
    else if (page.scaling == Scaling::actualSize)
        page.scaling = Scaling::fit;
    page.sheets.percent = kind == SizeKind::percent ? percent_->value() : 100.0;
    QSizeF size;
    if (kind == SizeKind::length)
        size = QSizeF(width_->value(), height_->value()) * unit();
    if (kind == SizeKind::length && (size.width() < kLeastPhoto || size.height() < kLeastPhoto))
        size = {kDefaultEach[0], kDefaultEach[1]};
    page.sheets.photo = size;
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

void LayoutPage::keepLayout()
{
    const PageSettings& page = session_.page();
    const std::optional<Layout> layout = session_.layouts().find(page.sheets.layout);
    if (!layout || name_->text().trimmed().isEmpty())
        return;
    QString id;
    const QString problem =
        session_.layouts().save(keepingSettings(*layout, page.sheets, page.scaling), name_->text(), &id);
    if (!problem.isEmpty()) {
        Q_EMIT told(problem);
        return;
    }
    name_->clear();
    listLayouts();
    session_.chooseLayout(id);
}

void LayoutPage::forgetLayout()
{
    const QString problem = session_.layouts().remove(session_.page().sheets.layout);
    if (!problem.isEmpty())
        Q_EMIT told(problem);
    listLayouts();
    session_.chooseLayout(QString());
}

} // namespace halvern
