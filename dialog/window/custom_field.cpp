// SPDX-License-Identifier: MIT
#include "dialog/window/custom_field.h"

#include "dialog/window/choice_list.h"
#include "platform/foundation/units.h"
#include "platform/toolkit/plain_text.h"

#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QLocale>
#include <QSignalBlocker>
#include <QSpinBox>

#include <algorithm>
#include <climits>
#include <cmath>
#include <utility>

namespace halvern {

namespace {

// In no PPD's list of choices: it begins with a blank.
const QString kOther = QStringLiteral(" other");
// Longer than any text that a printer takes.
constexpr int kMostLetters = 1024;

// Across windows, which QWidget::isAncestorOf() does not look beyond: an open pop-up is one.
bool isWithin(const QObject* root, const QObject* object)
{
    while (object && object != root)
        object = object->parent();
    return object != nullptr;
}

} // namespace

CustomField::CustomField(const OptionItem& option, const CustomValue& custom, QWidget* parent)
    : QWidget(parent), custom_(custom), box_(new QComboBox(this)), row_(new QHBoxLayout(this))
{
    setAutoFillBackground(true);
    row_->setContentsMargins(0, 0, 0, 0);
    row_->setSpacing(4);
    row_->addWidget(box_, 1);
    box_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box_->setMinimumContentsLength(4);
    setPlainName(box_, option.text);
    OptionItem all = option;
    all.choices.append({kOther, tr("Other value..."), {}});
    (new ChoiceList(box_))->setChoices(all.choices);
    makeField();
    setPlainName(field_, tr("%1: other value").arg(option.text));
    setFocusProxy(box_);
    connect(box_, &QComboBox::activated, this, [this] {
        showField();
        if (!isOther())
            finish();
        else
            field_->setFocus(Qt::OtherFocusReason);
    });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* before, QWidget* now) {
        if (before && now && isWithin(this, before) && !isWithin(this, now))
            finish();
    });
}

// Once: whoever hears it takes the editor away, and with it the focus.
void CustomField::finish()
{
    if (!std::exchange(isOver_, true))
        Q_EMIT finished();
}

void CustomField::makeField()
{
    using Kind = CustomValue::Kind;
    const bool isNumber = custom_.limits && (custom_.kind == Kind::whole || custom_.kind == Kind::number ||
                                             custom_.kind == Kind::length);
    if (isNumber && custom_.kind == Kind::length)
        addLength();
    else if (isNumber)
        addNumber();
    else
        addText();
    field_->hide();
}

void CustomField::addNumber()
{
    const ppd::Range& limits = *custom_.limits;
    if (custom_.kind == CustomValue::Kind::whole) {
        whole_ = new QSpinBox(this);
        whole_->setRange(int(std::clamp(limits.minimum, double(INT_MIN), double(INT_MAX))),
                         int(std::clamp(limits.maximum, double(INT_MIN), double(INT_MAX))));
        watch(whole_);
        return;
    }
    number_ = new QDoubleSpinBox(this);
    const bool isSmall = limits.maximum - limits.minimum < 100.0;
    number_->setDecimals(isSmall ? 3 : 1);
    number_->setSingleStep(isSmall ? 0.1 : 1.0);
    number_->setRange(limits.minimum, limits.maximum);
    watch(number_);
}

void CustomField::addLength()
{
    number_ = new QDoubleSpinBox(this);
    number_->setDecimals(2);
    unit_ = new QComboBox(this);
    unit_->addItem(tr("mm"), kPointsPerMillimetre);
    unit_->addItem(tr("in"), kPointsPerInch);
    unit_->addItem(tr("pt"), 1.0);
    unit_->setAccessibleName(tr("Unit"));
    unit_->setCurrentIndex(QLocale().measurementSystem() == QLocale::MetricSystem ? 0 : 1);
    unit_->hide();
    takeUnit();
    watch(number_);
    row_->addWidget(unit_);
    connect(unit_, &QComboBox::activated, this, &CustomField::takeUnit);
}

void CustomField::addText()
{
    text_ = new QLineEdit(this);
    if (custom_.isHidden())
        text_->setEchoMode(QLineEdit::Password);
    const bool isText = custom_.isHidden() || custom_.kind == CustomValue::Kind::text;
    if (isText && custom_.limits)
        text_->setMaxLength(std::clamp(int(custom_.limits->maximum), 1, kMostLetters));
    text_->setInputMethodHints(custom_.kind == CustomValue::Kind::digits ? Qt::ImhDigitsOnly : Qt::ImhNone);
    watch(text_);
    connect(text_, &QLineEdit::returnPressed, this, &CustomField::finish);
}

void CustomField::watch(QWidget* field)
{
    field_ = field;
    field->setMinimumWidth(fontMetrics().averageCharWidth() * 12);
    row_->addWidget(field, 1);
    auto* const spin = qobject_cast<QAbstractSpinBox*>(field);
    if (!spin)
        return;
    spin->setKeyboardTracking(false);
    if (auto* line = spin->findChild<QLineEdit*>())
        connect(line, &QLineEdit::returnPressed, this, &CustomField::finish);
}

double CustomField::pointsPerUnit() const
{
    return unit_->currentData().toDouble();
}

// The length stays what it is, in the other unit.
void CustomField::takeUnit()
{
    const double points = number_->value() * unitNow_;
    unitNow_ = pointsPerUnit();
    number_->setRange(custom_.limits->minimum / unitNow_, custom_.limits->maximum / unitNow_);
    number_->setSingleStep(unitNow_ > kPointsPerMillimetre ? 0.1 : 1.0);
    number_->setValue(points / unitNow_);
}

bool CustomField::isOther() const
{
    return box_->currentData() == kOther;
}

void CustomField::showField()
{
    field_->setVisible(isOther());
    if (unit_)
        unit_->setVisible(isOther());
}

void CustomField::setValue(const QString& value)
{
    shown_ = value;
    auto* const choices = static_cast<ChoiceList*>(box_->model());
    const bool isListed = box_->findData(value, Qt::UserRole, Qt::MatchExactly) >= 0;
    choices->select(isListed ? value : kOther);
    showField();
    if (whole_)
        whole_->setValue(value.toInt());
    else if (number_)
        number_->setValue(value.toDouble() / unitNow_);
    else if (!isListed)
        text_->setText(value); // plain: a field holds a value
}

QString CustomField::value() const
{
    if (!isOther())
        return box_->currentData().toString();
    if (text_)
        return text_->text();
    static_cast<QAbstractSpinBox*>(field_)->interpretText();
    if (whole_)
        return QString::number(whole_->value());
    // What nobody touched is not rounded to what the field shows of it.
    const double points = number_->value() * unitNow_;
    const double half = 0.51 * std::pow(10.0, -number_->decimals()) * unitNow_;
    bool wasNumber = false;
    const double before = shown_.toDouble(&wasNumber);
    return wasNumber && qAbs(points - before) < half ? shown_ : QString::number(points, 'g', 8);
}

} // namespace halvern
