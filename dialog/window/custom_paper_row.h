// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/custom_paper.h"

#include <QWidget>

class QComboBox;
class QDoubleSpinBox;
class QLineEdit;
class QPushButton;

namespace halvern {

/// The measures of a paper size of the user's own, in millimetres or inches, and the name under which it is
/// kept. Main thread only.
class CustomPaperRow : public QWidget {
    Q_OBJECT

public:
    explicit CustomPaperRow(QWidget* parent);

    /// Between which measures; takes the size into the fields unless somebody is typing in them.
    void show(const PaperLimits& limits, const QSizeF& points);

    /// The name that is kept for these measures; empty: none is.
    void setKeptName(const QString& name);

    /// Whether the length may follow the photo's, and what the button for it is called.
    void setPhotoLength(bool isPossible, bool isRoll);

Q_SIGNALS:
    void chosen(const QSizeF& points);
    /// The height shall fit the photo.
    void photoLengthAsked(double width);
    void keepAsked(const QString& name, const QSizeF& points);
    void forgetAsked(const QString& name);

private:
    QDoubleSpinBox* makeField(const QString& name, const QString& words);
    QSizeF points() const;
    void setUnit();
    void showLimits();
    void keepOrForget();

    PaperLimits limits_;
    QDoubleSpinBox* width_;
    QDoubleSpinBox* height_;
    QComboBox* unit_;
    QPushButton* photoLength_;
    QLineEdit* name_;
    QPushButton* keep_;
    QString keptName_;
    double pointsPerUnit_ = 1.0;
};

} // namespace halvern
