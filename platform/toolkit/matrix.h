// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QStringList>
#include <QWidget>

#include <optional>
#include <vector>

class QRadioButton;

namespace HALVERN_EXPORT halvern {

/// A grid of radio buttons of which at most one is selected. Each cell has a tag of its own and a title. The
/// cells are not views: only the matrix has a place in a panel's view. Main thread only.
class Matrix : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QStringList cellTitles READ cellTitles WRITE setCellTitles)
    Q_PROPERTY(QStringList cellTags READ cellTags WRITE setCellTags)
    Q_PROPERTY(int columns READ columns WRITE setColumns)

public:
    explicit Matrix(QWidget* parent = nullptr);

    /// Sets the titles and with them the number of cells; new cells get tags 1, 2, 3 and so on. Nothing is
    /// selected.
    void setCellTitles(const QStringList& titles);
    QStringList cellTitles() const;

    /// Tags as decimal texts, one for each cell in order; superfluous ones are ignored.
    void setCellTags(const QStringList& tags);
    QStringList cellTags() const;

    int columns() const { return columns_; }

    void setColumns(int columns);

    /// The buttons, owned by the matrix.
    const std::vector<QRadioButton*>& cells() const { return cells_; }

    static int tagOfCell(const QRadioButton* cell);

    /// The tag of the selected cell; nothing if none is selected.
    std::optional<int> selectedTag() const;
    QRadioButton* selectedCell() const;

    /// Selects the cell with the tag, disabled or not; with no such cell, nothing is selected. No user's
    /// action.
    void selectCellWithTag(int tag);

Q_SIGNALS:
    /// The user chose a cell.
    void userSelected();

private:
    void arrange();
    void deselectAll();

    std::vector<QRadioButton*> cells_;
    int columns_ = 4;
};

} // namespace halvern
