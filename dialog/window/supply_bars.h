// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/server/supply.h"

#include <QWidget>

class QGridLayout;

namespace halvern {

/// A printer's supplies as bars with words. Main thread only.
class SupplyBars : public QWidget {
    Q_OBJECT

public:
    explicit SupplyBars(QWidget* parent);

    void setSupplies(const QList<Supply>& supplies);

private:
    void addRow(const Supply& supply, int row);

    QList<Supply> supplies_;
    QGridLayout* grid_;
    QWidget* rows_ = nullptr;
};

} // namespace halvern
