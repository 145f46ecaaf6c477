// SPDX-License-Identifier: MIT
#include "dialog/window/page_range_row.h"

#include "platform/toolkit/plain_text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace halvern {

PageRangeRow::PageRangeRow(QWidget* parent)
    : QWidget(parent),
      ranges_(new QLineEdit(this)),
      parity_(new QComboBox(this)),
      reversed_(new QCheckBox(tr("Last page &first"), this)),
      problem_(new QLabel(this))
{
    setObjectName(QStringLiteral("pageRange"));
    ranges_->setObjectName(QStringLiteral("pageRanges"));
    ranges_->setClearButtonEnabled(true);
    setPlainName(ranges_, tr("Pages to print"));
    parity_->setObjectName(QStringLiteral("pageParity"));
    parity_->addItem(tr("Odd and even"), int(PageParity::all));
    parity_->addItem(tr("Odd only"), int(PageParity::odd));
    parity_->addItem(tr("Even only"), int(PageParity::even));
    setPlainName(parity_, tr("Odd or even pages"));
    reversed_->setObjectName(QStringLiteral("pagesReversed"));
    problem_->setObjectName(QStringLiteral("pageRangeProblem"));
    problem_->setWordWrap(true);
    problem_->hide();
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->addWidget(ranges_, 1);
    row->addWidget(parity_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);
    column->addLayout(row);
    column->addWidget(problem_);
    column->addWidget(reversed_);
    connect(ranges_, &QLineEdit::textEdited, this, &PageRangeRow::choose);
    // The button that clears the field is no typing.
    connect(ranges_, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (text.isEmpty())
            choose();
    });
    connect(parity_, &QComboBox::activated, this, &PageRangeRow::choose);
    connect(reversed_, &QCheckBox::clicked, this, &PageRangeRow::choose);
}

void PageRangeRow::setUncounted(bool hasCurrentPage, bool hasSelection)
{
    if (hasCurrentPage)
        parity_->addItem(tr("Current page"), int(PageParity::current));
    if (hasSelection)
        parity_->addItem(tr("Selection"), int(PageParity::selection));
    setPlainName(parity_, tr("Which pages"));
}

QWidget* PageRangeRow::field() const
{
    return ranges_;
}

void PageRangeRow::refresh(const PageChoice& choice, size_t count, const QString& problem)
{
    const QSignalBlocker quiet(ranges_);
    if (ranges_->text() != choice.ranges)
        ranges_->setText(choice.ranges); // plain: a field holds a value
    ranges_->setPlaceholderText(count > 0 ? tr("All %1, or for example 1-3, 5-").arg(count)
                                          : tr("All, or for example 1-3, 5-"));
    // What another program has chosen is not written in ranges.
    ranges_->setEnabled(choice.parity != PageParity::current && choice.parity != PageParity::selection);
    parity_->setCurrentIndex(parity_->findData(int(choice.parity)));
    reversed_->setChecked(choice.isReversed);
    const bool isDark = palette().color(QPalette::Window).lightness() < 128;
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, isDark ? QColor(255, 150, 110) : QColor(170, 60, 10));
    problem_->setPalette(colours);
    setPlainText(problem_, problem);
    setPlainDescription(ranges_, problem);
    problem_->setVisible(!problem.isEmpty());
}

void PageRangeRow::choose()
{
    Q_EMIT chosen({ranges_->text(), PageParity(parity_->currentData().toInt()), reversed_->isChecked()});
}

} // namespace halvern
