// SPDX-License-Identifier: MIT
#include "dialog/window/measure_fields.h"

#include "platform/foundation/units.h"
#include "platform/toolkit/plain_text.h"

#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLocale>

namespace halvern {

namespace {

struct MeasureFieldsWords {
    Q_DECLARE_TR_FUNCTIONS(LayoutPage)
};

constexpr int kRowSpacing = 8;

} // namespace

bool countsInMillimetres()
{
    return QLocale().measurementSystem() == QLocale::MetricSystem;
}

double lengthUnit()
{
    return countsInMillimetres() ? 1.0 : kMillimetresPerInch;
}

QDoubleSpinBox* makeLengthField(const QString& name, const QString& words, double most, QWidget* parent)
{
    const bool isMetric = countsInMillimetres();
    auto* field = new QDoubleSpinBox(parent);
    field->setObjectName(name);
    setPlainName(field, words);
    field->setRange(0.0, most / lengthUnit());
    field->setDecimals(isMetric ? 1 : 2);
    field->setSingleStep(isMetric ? 1.0 : 0.1);
    field->setSuffix(isMetric ? MeasureFieldsWords::tr(" mm") : MeasureFieldsWords::tr(" in"));
    field->setKeyboardTracking(false);
    field->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    return field;
}

QSpinBox* makeNumberField(const QString& name, const QString& words, int most, QWidget* parent)
{
    auto* field = new QSpinBox(parent);
    field->setObjectName(name);
    setPlainName(field, words);
    field->setRange(1, most);
    field->setKeyboardTracking(false);
    field->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    return field;
}

QHBoxLayout* rowIn(QWidget* box)
{
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kRowSpacing);
    return row;
}

} // namespace halvern
