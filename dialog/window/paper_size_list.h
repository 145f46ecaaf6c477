// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/custom_paper.h"
#include "dialog/options/paper_sizes.h"
#include "dialog/session/own_papers.h"

#include <QAbstractListModel>

namespace halvern {

/// The value of the row that stands for a size of the user's own making.
inline constexpr char kCustomRow[] = "Custom";

/// A printer's paper sizes behind a SearchBox. Main thread only.
class PaperSizeList : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    /// `own` as far as they are within `limits`, which are null where the printer takes no sizes but its own.
    void setSizes(std::vector<PaperSize> sizes, const QList<OwnPaper>& own,
                  const std::optional<PaperLimits>& limits);

    /// The row of a page size, also of one without margins that belongs to another; one that is not listed
    /// gets a row. Of several rows of a size the one of this tray goes first. -1 for none.
    int rowOf(const QString& pageSize, int tray = -1);

    const std::vector<PaperSize>& sizes() const { return sizes_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    std::vector<PaperSize> sizes_;
    QStringList searched_;
    bool isMetric_ = true;
};

} // namespace halvern
