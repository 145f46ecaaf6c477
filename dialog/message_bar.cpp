#include "dialog/message_bar.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

namespace halvern {

namespace {

struct KindLook {
    QColor colour;
    QStyle::StandardPixmap icon;
};

KindLook lookOf(MessageKind kind)
{
    switch (kind) {
    case MessageKind::warning:
        return {QColor(235, 160, 40), QStyle::SP_MessageBoxWarning};
    case MessageKind::error:
        return {QColor(215, 60, 60), QStyle::SP_MessageBoxCritical};
    case MessageKind::information:
        break;
    }
    return {QColor(60, 130, 215), QStyle::SP_MessageBoxInformation};
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
    close_->setIcon(style()->standardIcon(QStyle::SP_DialogCloseButton));
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
    const KindLook look = lookOf(kind);
    QPalette colours = parentWidget()->palette();
    colours.setColor(QPalette::Window, blended(look.colour, colours.color(QPalette::Window), 0.18));
    setPalette(colours);
    icon_->setPixmap(style()->standardIcon(look.icon).pixmap(18, 18));
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
    hide();
}

QString MessageBar::text() const
{
    return label_->text();
}

} // namespace halvern
