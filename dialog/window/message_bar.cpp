// SPDX-License-Identifier: MIT
#include "dialog/window/message_bar.h"

#include "platform/toolkit/plain_text.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QToolButton>

#include <algorithm>

namespace halvern {

namespace {

constexpr int kIconEdge = 18;
constexpr size_t kMostMessages = 50;

QColor colourOf(MessageKind kind)
{
    switch (kind) {
    case MessageKind::warning:
        return {190, 125, 0};
    case MessageKind::error:
        return {192, 57, 43};
    case MessageKind::information:
        break;
    }
    return {41, 112, 176};
}

// The style's own marks belong to another set of icons than its colours.
QPixmap markOf(MessageKind kind, qreal pixelRatio)
{
    QPixmap mark(QSize(kIconEdge, kIconEdge) * pixelRatio);
    mark.setDevicePixelRatio(pixelRatio);
    mark.fill(Qt::transparent);
    QPainter painter(&mark);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colourOf(kind));
    painter.drawEllipse(QRectF(0.5, 0.5, kIconEdge - 1, kIconEdge - 1));
    painter.setPen(Qt::white);
    QFont font = painter.font();
    font.setBold(true);
    font.setPixelSize(13);
    painter.setFont(font);
    painter.drawText(QRectF(0, 0, kIconEdge, kIconEdge), Qt::AlignCenter,
                     kind == MessageKind::information ? QStringLiteral("i") : QStringLiteral("!"));
    return mark;
}

QColor blended(const QColor& a, const QColor& b, double share)
{
    const auto mix = [share](int x, int y) { return int(x * share + y * (1.0 - share)); };
    return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

// As high as its text wants, and scrolled where there is less room.
class TextRoom : public QScrollArea {
public:
    TextRoom(QLabel* text, QWidget* parent) : QScrollArea(parent), text_(text)
    {
        setFrameShape(QFrame::NoFrame);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setWidgetResizable(true);
        setFocusPolicy(Qt::NoFocus);
        viewport()->setAutoFillBackground(false);
        setWidget(text);
        text->setAutoFillBackground(false);
        QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
        policy.setHeightForWidth(true);
        setSizePolicy(policy);
    }

    bool hasHeightForWidth() const override { return true; }

    int heightForWidth(int width) const override { return text_->heightForWidth(width); }

    QSize sizeHint() const override { return {200, fontMetrics().height()}; }

    QSize minimumSizeHint() const override { return {80, fontMetrics().height()}; }

private:
    QLabel* text_;
};

QToolButton* makeTool(const QString& name, QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setAutoRaise(true);
    setPlainName(button, name);
    setPlainToolTip(button, name);
    return button;
}

} // namespace

MessageBar::MessageBar(QWidget* parent)
    : QFrame(parent),
      icon_(new QLabel(this)),
      label_(new QLabel),
      room_(new TextRoom(label_, this)),
      body_(new QBoxLayout(QBoxLayout::TopToBottom)),
      back_(makeTool(tr("Previous message"), this)),
      number_(new QLabel(this)),
      forward_(makeTool(tr("Next message"), this)),
      action_(new QPushButton(this)),
      close_(makeTool(tr("Close the message"), this))
{
    setObjectName(QStringLiteral("messageBar"));
    setFrameShape(QFrame::StyledPanel);
    label_->setObjectName(QStringLiteral("messageText"));
    label_->setWordWrap(true);
    label_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    action_->setObjectName(QStringLiteral("messageAction"));
    action_->setAutoDefault(false);
    close_->setObjectName(QStringLiteral("messageClose"));
    close_->setText(QStringLiteral("\u2715"));
    auto* tools = new QHBoxLayout;
    tools->setSpacing(10);
    tools->addLayout(makePager());
    tools->addStretch();
    tools->addWidget(action_);
    body_->setSpacing(6);
    body_->addWidget(room_, 1);
    body_->addLayout(tools);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(12, 8, 8, 8);
    row->setSpacing(10);
    row->addWidget(icon_);
    row->addLayout(body_, 1);
    row->addWidget(close_);
    setCompact(false);
    connect(close_, &QToolButton::clicked, this, &MessageBar::dismiss);
    connect(action_, &QPushButton::clicked, this, &MessageBar::act);
    hide();
}

QLayout* MessageBar::makePager()
{
    back_->setObjectName(QStringLiteral("messageBack"));
    back_->setArrowType(isRightToLeft() ? Qt::RightArrow : Qt::LeftArrow);
    number_->setObjectName(QStringLiteral("messageNumber"));
    forward_->setObjectName(QStringLiteral("messageForward"));
    forward_->setArrowType(isRightToLeft() ? Qt::LeftArrow : Qt::RightArrow);
    connect(back_, &QToolButton::clicked, this, [this] { step(-1); });
    connect(forward_, &QToolButton::clicked, this, [this] { step(1); });
    auto* pager = new QHBoxLayout;
    pager->setSpacing(2);
    pager->addWidget(back_);
    pager->addWidget(number_);
    pager->addWidget(forward_);
    return pager;
}

void MessageBar::showMessage(MessageKind kind, const QString& text, MessageAction action, const QString& key)
{
    Message message{kind, text, std::move(action), key};
    const auto same = std::ranges::find_if(messages_, [&](const Message& told) {
        return key.isEmpty() ? told.key.isEmpty() && told.text == text : told.key == key;
    });
    if (isInUse()) {
        if (same != messages_.end()) {
            *same = std::move(message);
        } else {
            messages_.push_back(std::move(message));
            hasNews_ = true;
        }
    } else {
        if (same != messages_.end())
            messages_.erase(same);
        messages_.push_back(std::move(message));
        if (messages_.size() > kMostMessages)
            messages_.erase(messages_.begin());
        current_ = messages_.size() - 1;
    }
    showCurrent();
    setPlainName(this, text);
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void MessageBar::withdraw(const QString& key)
{
    const QString prefix = key + QLatin1Char('/');
    drop([&](const Message& told) { return told.key == key || told.key.startsWith(prefix); });
}

QString MessageBar::text() const
{
    return messages_.empty() ? QString() : messages_[current_].text;
}

void MessageBar::setCompact(bool compact)
{
    body_->setDirection(compact ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    const Qt::Alignment height = compact ? Qt::AlignVCenter : Qt::AlignTop;
    label_->setAlignment(Qt::AlignLeading | height);
    for (QWidget* edge : {static_cast<QWidget*>(icon_), static_cast<QWidget*>(close_)})
        layout()->setAlignment(edge, height);
    showCurrent();
}

void MessageBar::setCanAct(bool canAct)
{
    canAct_ = canAct;
    action_->setEnabled(canAct);
}

QList<QWidget*> MessageBar::tabOrder() const
{
    return {back_, forward_, action_, close_};
}

// Somebody is reading, or about to press a button.
bool MessageBar::isInUse() const
{
    return isVisible() &&
           (underMouse() || (window()->isActiveWindow() && isAncestorOf(window()->focusWidget())));
}

void MessageBar::step(int by)
{
    current_ = size_t(std::clamp<qsizetype>(qsizetype(current_) + by, 0, qsizetype(messages_.size()) - 1));
    showCurrent();
}

void MessageBar::dismiss()
{
    messages_.erase(messages_.begin() + qsizetype(current_));
    current_ = std::min(current_, messages_.empty() ? 0 : messages_.size() - 1);
    showCurrent();
}

void MessageBar::act()
{
    const std::function<void()> run = messages_[current_].action.run;
    dismiss();
    if (run)
        run();
}

void MessageBar::drop(const std::function<bool(const Message&)>& goes)
{
    const bool shownGoes = !messages_.empty() && goes(messages_[current_]);
    const auto before = std::ranges::count_if(
        messages_.begin(), messages_.begin() + qsizetype(std::min(current_, messages_.size())), goes);
    if (std::erase_if(messages_, goes) == 0)
        return;
    current_ = std::min(current_ - size_t(before), messages_.empty() ? 0 : messages_.size() - 1);
    showCurrent();
    // The pointer may be over a button that is now another message's.
    if (shownGoes && underMouse())
        action_->setEnabled(false);
}

void MessageBar::showCurrent()
{
    setVisible(!messages_.empty());
    if (!messages_.empty()) {
        const Message& message = messages_[current_];
        update(); // the ground has the message's colour
        icon_->setPixmap(markOf(message.kind, devicePixelRatioF()));
        setPlainText(label_, message.text);
        room_->updateGeometry(); // a scroll area does not pass on that its content wants another height
        action_->setText(displayText(message.action.title)); // plain: a button knows no markup
        action_->setVisible(!message.action.title.isEmpty());
        action_->setEnabled(canAct_);
        const bool isOneOfMany = messages_.size() > 1;
        for (QWidget* part :
             {static_cast<QWidget*>(back_), static_cast<QWidget*>(number_), static_cast<QWidget*>(forward_)})
            part->setVisible(isOneOfMany);
        setPlainText(number_, tr("%1 of %2").arg(current_ + 1).arg(messages_.size()));
        back_->setEnabled(current_ > 0);
        forward_->setEnabled(current_ + 1 < messages_.size());
        layout()->activate(); // until then the layouts in it know the old heights
    }
    Q_EMIT changed();
}

// Not by a palette: each palette of its own leaves its pictures of the buttons in the style's cache.
void MessageBar::paintEvent(QPaintEvent* event)
{
    if (!messages_.empty()) {
        QPainter painter(this);
        painter.fillRect(
            rect(), blended(colourOf(messages_[current_].kind), palette().color(QPalette::Window), 0.18));
    }
    QFrame::paintEvent(event);
}

void MessageBar::leaveEvent(QEvent* event)
{
    action_->setEnabled(canAct_);
    if (std::exchange(hasNews_, false) && !messages_.empty()) {
        current_ = messages_.size() - 1;
        showCurrent();
    }
    QFrame::leaveEvent(event);
}

} // namespace halvern
