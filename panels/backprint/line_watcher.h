// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>
#include <memory>
#include <utility>

class QLineEdit;

namespace halvern {

/// Knows of a text field what the field itself does not tell: whether an input method is composing in it, and
/// what the user had selected before the focus went elsewhere. Owned by the field. Main thread only.
class LineWatcher : public QObject {
    Q_OBJECT

public:
    /// Answers a reference that keeps the field's panel, null if that has gone.
    using KeepPanel = std::function<std::shared_ptr<void>()>;

    /// `catchUp` does what was postponed; it is called from the event loop after a composition has ended,
    /// however it did.
    LineWatcher(QLineEdit* field, KeepPanel keepPanel, std::function<void()> catchUp);

    /// The field's watcher, null if it has none.
    static LineWatcher* of(QLineEdit* field);

    bool isComposing() const { return composing_; }

    /// Notes that something waits for the composition's end.
    void postpone() { postponed_ = true; }

    /// Whether something waits; from now on nothing does.
    bool takePostponed() { return std::exchange(postponed_, false); }

    /// Brings back the selection that the user had when the focus left the field, if its text is still the
    /// same.
    void restoreUsersSelection();

    /// Lifts a selection that came with the focus and was not the user's doing.
    void dropAutomaticSelection();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void compose(QEvent* event);
    void fieldMoved();
    void endComposition();
    void catchUp();
    void focusComes(Qt::FocusReason reason);
    void focusHasCome();
    void focusLeaves();

    QLineEdit* field_;
    KeepPanel keepPanel_;
    std::function<void()> catchUp_;
    bool composing_ = false;
    bool inInputMethodEvent_ = false;
    bool postponed_ = false;
    bool cameByKeyboard_ = false;
    bool selectedAutomatically_ = false;
    QString textLeft_;
    int selectionLeft_ = -1;
    int selectionLengthLeft_ = 0;
};

} // namespace halvern
