// SPDX-License-Identifier: MIT
#include "platform/toolkit/matrix.h"

#include <QGridLayout>
#include <QRadioButton>

#include <algorithm>

namespace halvern {

namespace {

constexpr char kCellTag[] = "cellTag";

} // namespace

Matrix::Matrix(QWidget* parent) : QWidget(parent)
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
}

void Matrix::setCellTitles(const QStringList& titles)
{
    qDeleteAll(cells_);
    cells_.clear();
    for (const QString& title : titles) {
        auto* cell = new QRadioButton(title, this);
        cell->setProperty(kCellTag, int(cells_.size()) + 1);
        connect(cell, &QRadioButton::clicked, this, &Matrix::userSelected);
        cells_.push_back(cell);
    }
    if (!cells_.empty())
        setFocusProxy(cells_.front());
    arrange();
}

QStringList Matrix::cellTitles() const
{
    QStringList titles;
    for (const QRadioButton* cell : cells_)
        titles.append(cell->text());
    return titles;
}

void Matrix::setCellTags(const QStringList& tags)
{
    for (qsizetype i = 0; i < tags.size() && i < qsizetype(cells_.size()); ++i)
        cells_[size_t(i)]->setProperty(kCellTag, tags[i].toInt());
}

QStringList Matrix::cellTags() const
{
    QStringList tags;
    for (const QRadioButton* cell : cells_)
        tags.append(QString::number(tagOfCell(cell)));
    return tags;
}

void Matrix::setColumns(int columns)
{
    columns_ = std::max(1, columns);
    arrange();
}

int Matrix::tagOfCell(const QRadioButton* cell)
{
    return cell->property(kCellTag).toInt();
}

QRadioButton* Matrix::selectedCell() const
{
    const auto found =
        std::find_if(cells_.begin(), cells_.end(), [](QRadioButton* cell) { return cell->isChecked(); });
    return found == cells_.end() ? nullptr : *found;
}

std::optional<int> Matrix::selectedTag() const
{
    const QRadioButton* cell = selectedCell();
    return cell ? std::optional<int>(tagOfCell(cell)) : std::nullopt;
}

void Matrix::selectCellWithTag(int tag)
{
    const auto found = std::find_if(cells_.begin(), cells_.end(),
                                    [tag](QRadioButton* cell) { return tagOfCell(cell) == tag; });
    if (found == cells_.end())
        deselectAll();
    else
        (*found)->setChecked(true);
}

// Exclusive buttons cannot be switched off one by one.
void Matrix::deselectAll()
{
    for (QRadioButton* cell : cells_)
        cell->setAutoExclusive(false);
    for (QRadioButton* cell : cells_) {
        cell->setChecked(false);
        cell->setAutoExclusive(true);
    }
}

void Matrix::arrange()
{
    auto* grid = static_cast<QGridLayout*>(layout());
    for (size_t i = 0; i < cells_.size(); ++i)
        grid->addWidget(cells_[i], int(i) / columns_, int(i) % columns_);
}

} // namespace halvern
