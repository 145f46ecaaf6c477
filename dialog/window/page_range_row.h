// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/page_choice.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

namespace halvern {

/// Which of several pages are printed, and in what order. What is wrong with it is said below the field, as
/// it is typed. Main thread only.
class PageRangeRow : public QWidget {
    Q_OBJECT

public:
    explicit PageRangeRow(QWidget* parent);

    /// Takes the choice into the controls; `problem` is a sentence, or empty.
    void refresh(const PageChoice& choice, size_t count, const QString& problem);

    /// Another program counts the pages, and may know which it shows or which are selected. Once, before
    /// refresh().
    void setUncounted(bool hasCurrentPage, bool hasSelection);

    QWidget* field() const;

Q_SIGNALS:
    void chosen(const halvern::PageChoice& choice);

private:
    void choose();

    QLineEdit* ranges_;
    QComboBox* parity_;
    QCheckBox* reversed_;
    QLabel* problem_;
};

} // namespace halvern
