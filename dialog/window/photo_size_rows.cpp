// SPDX-License-Identifier: MIT
#include "dialog/window/photo_size_rows.h"

#include "dialog/window/measure_fields.h"
#include "platform/toolkit/plain_text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

namespace halvern {

namespace {

enum class SizeKind { page, length, percent };

} // namespace

PhotoSizeRow::PhotoSizeRow(QWidget* parent)
    : QWidget(parent),
      kind_(new QComboBox(this)),
      width_(makeLengthField(QStringLiteral("photoWidth"), tr("Width of the photo"), kMostPhoto, this)),
      height_(makeLengthField(QStringLiteral("photoHeight"), tr("Height of the photo"), kMostPhoto, this)),
      percent_(new QDoubleSpinBox(this)),
      lengths_(new QWidget(this))
{
    kind_->setObjectName(QStringLiteral("photoSizeKind"));
    kind_->addItem(tr("As large as the page"), int(SizeKind::page));
    kind_->addItem(tr("In"), int(SizeKind::length));
    kind_->addItem(tr("Of its own size"), int(SizeKind::percent));
    setPlainName(kind_, tr("Photo size"));
    percent_->setObjectName(QStringLiteral("photoPercent"));
    percent_->setRange(kLeastPercent, kMostPercent);
    percent_->setDecimals(1);
    percent_->setSuffix(tr(" %"));
    percent_->setKeyboardTracking(false);
    setPlainName(percent_, tr("Percent of its own size"));
    QHBoxLayout* lengths = rowIn(lengths_);
    lengths->addWidget(width_);
    lengths->addWidget(new QLabel(QStringLiteral("\u00d7"), lengths_));
    lengths->addWidget(height_);
    QHBoxLayout* row = rowIn(this);
    row->addWidget(kind_);
    row->addWidget(lengths_);
    row->addWidget(percent_);
    row->addStretch();
    connect(kind_, &QComboBox::activated, this, &PhotoSizeRow::chosen);
    for (QDoubleSpinBox* field : {width_, height_, percent_})
        connect(field, &QDoubleSpinBox::valueChanged, this, &PhotoSizeRow::chosen);
}

QWidget* PhotoSizeRow::first() const
{
    return kind_;
}

void PhotoSizeRow::setPage(const PageSettings& page)
{
    const QSignalBlocker quiet(this);
    const SheetSettings& sheets = page.sheets;
    const SizeKind kind = page.scaling == Scaling::actualSize ? SizeKind::percent
                          : sheets.photo.isEmpty()            ? SizeKind::page
                                                              : SizeKind::length;
    kind_->setCurrentIndex(kind_->findData(int(kind)));
    lengths_->setVisible(kind == SizeKind::length);
    percent_->setVisible(kind == SizeKind::percent);
    if (kind == SizeKind::length) {
        width_->setValue(sheets.photo.width() / lengthUnit());
        height_->setValue(sheets.photo.height() / lengthUnit());
    }
    percent_->setValue(sheets.percent);
}

void PhotoSizeRow::take(PageSettings& page) const
{
    const auto kind = SizeKind(kind_->currentData().toInt());
    if (kind == SizeKind::percent)
        page.scaling = Scaling::actualSize;
    else if (page.scaling == Scaling::actualSize)
        page.scaling = Scaling::fit;
    page.sheets.percent = kind == SizeKind::percent ? percent_->value() : 100.0;
    QSizeF size;
    if (kind == SizeKind::length)
        size = QSizeF(width_->value(), height_->value()) * lengthUnit();
    if (kind == SizeKind::length && (size.width() < kLeastPhoto || size.height() < kLeastPhoto))
        size = kUsualPhoto;
    page.sheets.photo = size;
}

PhotoPlaceRow::PhotoPlaceRow(QWidget* parent)
    : QWidget(parent),
      isPlaced_(new QCheckBox(tr("Away from the corner:"), this)),
      left_(makeLengthField(QStringLiteral("photoLeft"), tr("From the left"), kMostPhoto, this)),
      top_(makeLengthField(QStringLiteral("photoTop"), tr("From the top"), kMostPhoto, this))
{
    isPlaced_->setObjectName(QStringLiteral("photoPlaced"));
    isPlaced_->setToolTip(tr("Without it the photo is in the middle of the sheet"));
    QHBoxLayout* row = rowIn(this);
    row->addWidget(isPlaced_);
    row->addWidget(left_);
    row->addWidget(top_);
    row->addStretch();
    connect(isPlaced_, &QCheckBox::clicked, this, &PhotoPlaceRow::chosen);
    for (QDoubleSpinBox* field : {left_, top_})
        connect(field, &QDoubleSpinBox::valueChanged, this, &PhotoPlaceRow::chosen);
}

QWidget* PhotoPlaceRow::first() const
{
    return isPlaced_;
}

void PhotoPlaceRow::setCorner(const std::optional<QPointF>& corner)
{
    const QSignalBlocker quiet(this);
    isPlaced_->setChecked(corner.has_value());
    left_->setEnabled(corner.has_value());
    top_->setEnabled(corner.has_value());
    if (corner) {
        left_->setValue(corner->x() / lengthUnit());
        top_->setValue(corner->y() / lengthUnit());
    }
}

std::optional<QPointF> PhotoPlaceRow::corner() const
{
    if (!isPlaced_->isChecked())
        return std::nullopt;
    return QPointF(left_->value(), top_->value()) * lengthUnit();
}

} // namespace halvern
