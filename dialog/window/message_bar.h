// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

#include <functional>
#include <vector>

class QBoxLayout;
class QLabel;
class QPushButton;
class QToolButton;

namespace halvern {

enum class MessageKind { information, warning, error };

/// A button that a message offers: pressing it takes the message away, then calls `run` on the main thread.
struct MessageAction {
    QString title = {};
    std::function<void()> run = {};
};

/// What the dialog has to tell without stopping the user: all messages are kept, one is shown, the others are
/// a step away. The newest is shown as it comes, unless the pointer or the keyboard's focus is on the bar:
/// then it waits there, counted, so that nobody presses a button that was another one a moment before. Where
/// the bar lies is its owner's business. Main thread only.
class MessageBar : public QFrame {
    Q_OBJECT

public:
    explicit MessageBar(QWidget* parent);

    /// Tells something; the text may come from anywhere. A message takes the place of the one with the same
    /// key, or, without a key, of the one with the same text.
    void showMessage(MessageKind kind, const QString& text, MessageAction action = {},
                     const QString& key = QString());

    /// Takes the messages with this key away, and those whose key begins with it and a slash.
    void withdraw(const QString& key);

    /// Takes all messages away.
    void clear();

    /// The shown message; empty if there is none.
    QString text() const;

    int count() const { return int(messages_.size()); }

    /// One row instead of two, for a bar that is wide and low.
    void setCompact(bool compact);

    /// What the Tab key visits here.
    QList<QWidget*> tabOrder() const;

Q_SIGNALS:
    /// Another message is shown, or none, and the bar wants another height.
    void changed();

protected:
    void leaveEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct Message {
        MessageKind kind;
        QString text;
        MessageAction action;
        QString key;
    };

    QLayout* makePager();
    bool isInUse() const;
    void step(int by);
    void dismiss();
    void act();
    void drop(const std::function<bool(const Message&)>& goes);
    void showCurrent();

    std::vector<Message> messages_;
    size_t current_ = 0;
    bool hasNews_ = false; // the last one came while the bar was in use
    QLabel* icon_;
    QLabel* label_;
    QWidget* room_ = nullptr; // the text's
    QBoxLayout* body_;
    QToolButton* back_;
    QLabel* number_;
    QToolButton* forward_;
    QPushButton* action_;
    QToolButton* close_;
};

} // namespace halvern
