#include "dialog/window/message_bar.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QToolButton>

namespace halvern {

namespace {

QColor colourOf(MessageKind kind)
{
    switch (kind) {
    case MessageKind::warning:
        return {225, 140, 20};
    case MessageKind::error:
        return {205, 50, 50};
    case MessageKind::information:
        break;
    }
    return {50, 120, 205};
}

// A mark in the message's colour, which the desktop's own icons do not have in every theme.
QPixmap markOf(MessageKind kind, double ratio)
{
    constexpr int kEdge = 18;
    QPixmap mark(QSize(kEdge, kEdge) * ratio);
    mark.setDevicePixelRatio(ratio);
    mark.fill(Qt::transparent);
    QPainter painter(&mark);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colourOf(kind));
    painter.drawEllipse(QRectF(0.5, 0.5, kEdge - 1, kEdge - 1));
    painter.setPen(Qt::white);
    QFont font = painter.font();
    font.setBold(true);
    font.setPixelSize(13);
    painter.setFont(font);
    painter.drawText(QRectF(0, 0, kEdge, kEdge), Qt::AlignCenter,
                     kind == MessageKind::information ? QStringLiteral("i") : QStringLiteral("!"));
    return mark;
}

QColor blended(const QColor& a, const QColor& b, double share)
{
    const auto mix = [share](int x, int y) { return int(x * share + y * (1.0 - share)); };
    return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

} // namespace

MessageBar::MessageBar(QWidget* parent)
    : QFrame(parent),
      icon_(new QLabel(this)),
      label_(new QLabel(this)),
      action_(new QPushButton(this)),
      close_(new QToolButton(this))
{
    setObjectName(QStringLiteral("messageBar"));
    setAutoFillBackground(true);
    label_->setObjectName(QStringLiteral("messageText"));
    label_->setWordWrap(true);
    label_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    action_->setObjectName(QStringLiteral("messageAction"));
    close_->setAutoRaise(true);
    close_->setText(QStringLiteral("\u2715"));
    close_->setAccessibleName(tr("Close the message"));
    close_->setToolTip(tr("Close the message"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(12, 8, 8, 8);
    row->setSpacing(10);
    row->addWidget(icon_, 0, Qt::AlignTop);
    row->addWidget(label_, 1);
    row->addWidget(action_);
    row->addWidget(close_, 0, Qt::AlignTop);
    connect(close_, &QToolButton::clicked, this, &MessageBar::clear);
    connect(action_, &QPushButton::clicked, this, [this] {
        clear();
        Q_EMIT actionChosen();
    });
    hide();
}

void MessageBar::showMessage(MessageKind kind, const QString& text, const QString& action)
{
    QPalette colours = parentWidget()->palette();
    colours.setColor(QPalette::Window, blended(colourOf(kind), colours.color(QPalette::Window), 0.18));
    setPalette(colours);
    icon_->setPixmap(markOf(kind, devicePixelRatioF()));
    label_->setText(text);
    action_->setText(action);
    action_->setVisible(!action.isEmpty());
    setAccessibleName(text);
    show();
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void MessageBar::clear()
{
    label_->clear();
    action_->setText({});
    hide();
}

void MessageBar::clearAction()
{
    if (!action_->text().isEmpty())
        clear();
}

QString MessageBar::text() const
{
    return label_->text();
}

} // namespace halvern
