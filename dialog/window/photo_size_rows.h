// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/page_setup.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;

namespace halvern {

/// How large the photo is on its sheet: as the page has it, in lengths, or in per cent of its own size. Main
/// thread only.
class PhotoSizeRow : public QWidget {
    Q_OBJECT

public:
    explicit PhotoSizeRow(QWidget* parent);

    /// Shows what is chosen; tells nobody.
    void setPage(const PageSettings& page);

    /// Puts what is chosen here into the settings.
    void take(PageSettings& page) const;

    /// What the row's label leads to.
    QWidget* first() const;

Q_SIGNALS:
    /// The user has chosen something else.
    void chosen();

private:
    QComboBox* kind_;
    QDoubleSpinBox* width_;
    QDoubleSpinBox* height_;
    QDoubleSpinBox* percent_;
    QWidget* lengths_;
};

/// Where the photo is on its sheet: in the middle, or as far away from the corner. Main thread only.
class PhotoPlaceRow : public QWidget {
    Q_OBJECT

public:
    explicit PhotoPlaceRow(QWidget* parent);

    /// Shows what is chosen; tells nobody. In millimetres; nothing: in the middle.
    void setCorner(const std::optional<QPointF>& corner);

    /// What is chosen, in millimetres.
    std::optional<QPointF> corner() const;

    /// What the row's label leads to.
    QWidget* first() const;

Q_SIGNALS:
    /// The user has chosen something else.
    void chosen();

private:
    QCheckBox* isPlaced_;
    QDoubleSpinBox* left_;
    QDoubleSpinBox* top_;
};

} // namespace halvern
