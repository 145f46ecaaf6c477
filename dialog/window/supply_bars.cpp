// SPDX-License-Identifier: MIT
#include "dialog/window/supply_bars.h"

#include "platform/toolkit/plain_text.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>

namespace halvern {

namespace {

constexpr int kBarHeight = 14;
constexpr int kBarWidth = 140;
constexpr double kRounding = 4.0;
constexpr int kLongestSupplyName = 60;

// As much of it is filled as is left; several colours lie one above the other. A level that nobody knows is
// hatched.
class SupplyBar : public QWidget {
public:
    SupplyBar(Supply supply, QWidget* parent) : QWidget(parent), supply_(std::move(supply))
    {
        setFixedHeight(kBarHeight);
        setMinimumWidth(kBarWidth);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
        QPainterPath shape;
        shape.addRoundedRect(frame, kRounding, kRounding);
        painter.fillPath(shape, palette().base());
        painter.setClipPath(shape);
        if (supply_.level)
            fill(painter, frame);
        else
            painter.fillRect(frame, QBrush(palette().color(QPalette::Mid), Qt::BDiagPattern));
        painter.setClipping(false);
        QColor line = palette().color(QPalette::WindowText);
        line.setAlphaF(0.45F);
        painter.setPen(line);
        painter.drawPath(shape);
    }

private:
    void fill(QPainter& painter, const QRectF& frame) const
    {
        QList<quint32> colours = supply_.colours;
        if (colours.isEmpty())
            colours = {palette().color(QPalette::Mid).rgb() & 0xffffffU};
        const double width = frame.width() * *supply_.level / 100.0;
        const double height = frame.height() / double(colours.size());
        const bool isMirrored = layoutDirection() == Qt::RightToLeft;
        const double left = isMirrored ? frame.right() - width : frame.left();
        for (qsizetype i = 0; i < colours.size(); ++i)
            painter.fillRect(QRectF(left, frame.top() + double(i) * height, width, height),
                             QColor::fromRgb(colours[i]));
    }

    Supply supply_;
};

} // namespace

SupplyBars::SupplyBars(QWidget* parent) : QWidget(parent), grid_(nullptr)
{
    setObjectName(QStringLiteral("supplies"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
}

void SupplyBars::setSupplies(const QList<Supply>& supplies)
{
    if (rows_ && supplies == supplies_)
        return;
    supplies_ = supplies;
    delete rows_;
    rows_ = new QWidget(this);
    grid_ = new QGridLayout(rows_);
    grid_->setContentsMargins(0, 2, 0, 0);
    grid_->setHorizontalSpacing(12);
    grid_->setVerticalSpacing(8);
    grid_->setColumnStretch(1, 1);
    for (int i = 0; i < supplies.size(); ++i)
        addRow(supplies[i], i);
    layout()->addWidget(rows_);
}

void SupplyBars::addRow(const Supply& supply, int row)
{
    auto* name = new QLabel(rows_);
    setPlainText(name, supplyName(supply), kLongestSupplyName);
    auto* bar = new SupplyBar(supply, rows_);
    auto* level = new QLabel(rows_);
    setPlainText(level, levelText(supply));
    if (isLow(supply)) {
        QFont font = level->font();
        font.setBold(true);
        level->setFont(font);
    }
    setPlainName(bar, tr("%1: %2").arg(supplyName(supply), levelText(supply)));
    grid_->addWidget(name, row, 0);
    grid_->addWidget(bar, row, 1);
    grid_->addWidget(level, row, 2);
}

} // namespace halvern
