// SPDX-License-Identifier: MIT
#include "dialog/window/custom_paper_row.h"

#include "platform/foundation/units.h"
#include "platform/toolkit/plain_text.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace halvern {

namespace {

constexpr int kLongestPaperName = 60;

} // namespace

CustomPaperRow::CustomPaperRow(QWidget* parent)
    : QWidget(parent),
      width_(makeField(QStringLiteral("customWidth"), tr("Width of the paper"))),
      height_(makeField(QStringLiteral("customHeight"), tr("Height of the paper"))),
      unit_(new QComboBox(this)),
      photoLength_(new QPushButton(this)),
      name_(new QLineEdit(this)),
      keep_(new QPushButton(tr("&Keep"), this))
{
    setObjectName(QStringLiteral("customPaper"));
    unit_->addItem(tr("mm"), kPointsPerMillimetre);
    unit_->addItem(tr("in"), kPointsPerInch);
    unit_->setCurrentIndex(QLocale().measurementSystem() == QLocale::MetricSystem ? 0 : 1);
    unit_->setObjectName(QStringLiteral("customUnit"));
    setPlainName(unit_, tr("Unit of length"));
    photoLength_->setObjectName(QStringLiteral("photoLength"));
    photoLength_->setAutoDefault(false);
    name_->setObjectName(QStringLiteral("customName"));
    name_->setPlaceholderText(tr("Name, to find it again"));
    name_->setMaxLength(kLongestPaperName);
    setPlainName(name_, tr("Name of this paper size"));
    keep_->setObjectName(QStringLiteral("keepCustom"));
    keep_->setAutoDefault(false);
    auto* measures = new QHBoxLayout;
    measures->addWidget(width_);
    measures->addWidget(new QLabel(QStringLiteral("\u00d7"), this));
    measures->addWidget(height_);
    measures->addWidget(unit_);
    measures->addStretch();
    auto* naming = new QHBoxLayout;
    naming->addWidget(name_, 1);
    naming->addWidget(keep_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(measures);
    column->addWidget(photoLength_, 0, Qt::AlignLeading);
    column->addLayout(naming);
    connect(unit_, &QComboBox::activated, this, &CustomPaperRow::setUnit);
    for (QDoubleSpinBox* field : {width_, height_})
        connect(field, &QDoubleSpinBox::valueChanged, this, [this] { Q_EMIT chosen(points()); });
    connect(photoLength_, &QPushButton::clicked, this, [this] { Q_EMIT photoLengthAsked(points().width()); });
    connect(keep_, &QPushButton::clicked, this, &CustomPaperRow::keepOrForget);
    connect(name_, &QLineEdit::returnPressed, this, &CustomPaperRow::keepOrForget);
    connect(name_, &QLineEdit::textChanged, this,
            [this](const QString& text) { keep_->setEnabled(!text.trimmed().isEmpty()); });
    pointsPerUnit_ = unit_->currentData().toDouble();
    keep_->setEnabled(false);
}

QDoubleSpinBox* CustomPaperRow::makeField(const QString& name, const QString& words)
{
    auto* field = new QDoubleSpinBox(this);
    field->setObjectName(name);
    // Half a number is no size yet.
    field->setKeyboardTracking(false);
    setPlainName(field, words);
    return field;
}

QSizeF CustomPaperRow::points() const
{
    return QSizeF(width_->value(), height_->value()) * pointsPerUnit_;
}

void CustomPaperRow::showLimits()
{
    const bool isMetric = unit_->currentIndex() == 0;
    const auto setRange = [&](QDoubleSpinBox* field, double least, double most) {
        const QSignalBlocker quiet(field);
        const int usual = isMetric ? 1 : 3;
        // A roll has one width, which need not be a whole step.
        const bool isFixed = (most - least) / pointsPerUnit_ < std::pow(10.0, -usual);
        const int decimals = isFixed ? usual + 1 : usual;
        const double steps = std::pow(10.0, decimals);
        field->setDecimals(decimals);
        field->setSingleStep(isMetric ? 1.0 : 0.125);
        if (isFixed)
            field->setRange(std::round(least / pointsPerUnit_ * steps) / steps,
                            std::round(most / pointsPerUnit_ * steps) / steps);
        else
            field->setRange(std::ceil(least / pointsPerUnit_ * steps) / steps,
                            std::floor(most / pointsPerUnit_ * steps) / steps);
        setPlainToolTip(field, tr("From %1 to %2 %3")
                                   .arg(field->textFromValue(field->minimum()),
                                        field->textFromValue(field->maximum()), unit_->currentText()));
    };
    setRange(width_, limits_.least.width(), limits_.most.width());
    setRange(height_, limits_.least.height(), limits_.most.height());
}

void CustomPaperRow::show(const PaperLimits& limits, const QSizeF& points)
{
    limits_ = limits;
    showLimits();
    const auto setValue = [&](QDoubleSpinBox* field, double length) {
        const QSignalBlocker quiet(field);
        if (!field->hasFocus() || std::abs(field->value() * pointsPerUnit_ - length) > 0.1)
            field->setValue(length / pointsPerUnit_);
    };
    setValue(width_, points.width());
    setValue(height_, points.height());
}

void CustomPaperRow::setKeptName(const QString& name)
{
    if (name == keptName_)
        return;
    keptName_ = name;
    const QSignalBlocker quiet(name_);
    if (!name_->hasFocus() || !name.isEmpty())
        name_->setText(name); // plain: a field holds a value
    name_->setReadOnly(!name.isEmpty());
    keep_->setText(name.isEmpty() ? tr("&Keep") : tr("&Forget"));
    keep_->setEnabled(!name_->text().trimmed().isEmpty());
}

void CustomPaperRow::setPhotoLength(bool isPossible, bool isRoll)
{
    photoLength_->setVisible(isPossible);
    photoLength_->setText(isRoll ? tr("As &Long as the Photo") : tr("As &High as the Photo"));
}

void CustomPaperRow::setUnit()
{
    const QSizeF before = points();
    pointsPerUnit_ = unit_->currentData().toDouble();
    show(limits_, before);
}

void CustomPaperRow::keepOrForget()
{
    const QString name = name_->text().trimmed();
    if (name.isEmpty())
        return;
    if (keptName_.isEmpty())
        Q_EMIT keepAsked(name, points());
    else
        Q_EMIT forgetAsked(keptName_);
}

} // namespace halvern
