#pragma once

#include <QFrame>

class QLabel;
class QToolButton;
class QPushButton;

namespace halvern {

enum class MessageKind { information, warning, error };

/// A line across the dialog that tells something without stopping the user. Main thread only.
class MessageBar : public QFrame {
    Q_OBJECT

public:
    explicit MessageBar(QWidget* parent);

    /// Shows a sentence in place of the one before.
    void showMessage(MessageKind kind, const QString& text, const QString& action = QString());

    /// Takes the sentence away.
    void clear();

    /// Takes a message that offers an action away; another one stays.
    void clearAction();

    QString text() const;

Q_SIGNALS:
    /// The user pressed the message's own button.
    void actionChosen();

private:
    QLabel* icon_;
    QLabel* label_;
    QPushButton* action_;
    QToolButton* close_;
};

} // namespace halvern
