// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/ppd_model.h"

#include <QWidget>

class QAbstractSpinBox;
class QComboBox;
class QDoubleSpinBox;
class QHBoxLayout;
class QLineEdit;
class QSpinBox;

namespace halvern {

/// A pop-up of an option's choices with "Other value" at its end, and beside it, once that is chosen, a field
/// of the custom value's kind: a number within its limits, a length with its unit, a text, or a secret whose
/// letters do not show. Main thread only.
class CustomField : public QWidget {
    Q_OBJECT

public:
    CustomField(const OptionItem& option, const CustomValue& custom, QWidget* parent);

    /// Shows a value: a listed choice, or a custom value as the model keeps it.
    void setValue(const QString& value);

    /// What is shown now, in the C locale and lengths in points.
    QString value() const;

    QComboBox* box() const { return box_; }

    /// Whether a custom value is shown, and not a listed one.
    bool isOther() const;

Q_SIGNALS:
    /// A choice was made, or the editing of a custom value has ended; told once.
    void finished();

private:
    void finish();
    void makeField();
    void addNumber();
    void addLength();
    void addText();
    void showField();
    double pointsPerUnit() const;
    void takeUnit();
    void watch(QWidget* field);

    CustomValue custom_;
    QComboBox* box_;
    QHBoxLayout* row_;
    QWidget* field_ = nullptr;
    QSpinBox* whole_ = nullptr;
    QDoubleSpinBox* number_ = nullptr;
    QComboBox* unit_ = nullptr;
    QLineEdit* text_ = nullptr;
    QString shown_; ///< what setValue() was given, for whoever changes nothing
    double unitNow_ = 1.0;
    bool isOver_ = false;
};

} // namespace halvern
