// SPDX-License-Identifier: MIT
#include "panels/backprint/line_watcher.h"

#include <QApplication>
#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QScopedValueRollback>

namespace halvern {

namespace {

// The field keeps its selection while a menu is open or another window is in front.
bool isPassing(Qt::FocusReason reason)
{
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
}

} // namespace

LineWatcher::LineWatcher(QLineEdit* field, KeepPanel keepPanel, std::function<void()> catchUp)
    : QObject(field), field_(field), keepPanel_(std::move(keepPanel)), catchUp_(std::move(catchUp))
{
    field->installEventFilter(this);
    connect(field, &QLineEdit::selectionChanged, this, [this] { selectedAutomatically_ = false; });
    connect(field, &QLineEdit::textChanged, this, &LineWatcher::fieldMoved);
    connect(field, &QLineEdit::cursorPositionChanged, this, &LineWatcher::fieldMoved);
    // Comes after the field has dealt with the arrival.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (now == field_)
            focusHasCome();
    });
}

LineWatcher* LineWatcher::of(QLineEdit* field)
{
    return field ? field->findChild<LineWatcher*>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
}

bool LineWatcher::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != field_)
        return false;
    switch (event->type()) {
    case QEvent::InputMethod:
        compose(event);
        return true;
    case QEvent::FocusIn:
        focusComes(static_cast<QFocusEvent*>(event)->reason());
        break;
    case QEvent::FocusOut:
        endComposition();
        if (!isPassing(static_cast<QFocusEvent*>(event)->reason()))
            focusLeaves();
        break;
    default:
        break;
    }
    return false;
}

// Lets the field deal with what the input method says, and knows when it has.
void LineWatcher::compose(QEvent* event)
{
    const QScopedValueRollback<bool> guard(inInputMethodEvent_, true);
    composing_ = !static_cast<const QInputMethodEvent*>(event)->preeditString().isEmpty();
    field_->event(event);
    if (!composing_)
        endComposition();
}

// A field whose text or cursor is moved by anybody but the input method drops what is being composed, and the
// input method need not say so.
void LineWatcher::fieldMoved()
{
    if (composing_ && !inInputMethodEvent_)
        endComposition();
}

void LineWatcher::endComposition()
{
    composing_ = false;
    if (!postponed_)
        return;
    // What is queued keeps its panel until it has run, and the panel keeps the field.
    QMetaObject::invokeMethod(
        this, [this, panel = keepPanel_()] { catchUp(); }, Qt::QueuedConnection);
}

void LineWatcher::catchUp()
{
    if (takePostponed())
        catchUp_();
}

void LineWatcher::focusComes(Qt::FocusReason reason)
{
    cameByKeyboard_ =
        reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}

// The field selects all its text when the keyboard brings the focus.
void LineWatcher::focusHasCome()
{
    if (std::exchange(cameByKeyboard_, false))
        selectedAutomatically_ = field_->hasSelectedText();
}

// The field forgets its selection when it loses the focus.
void LineWatcher::focusLeaves()
{
    textLeft_ = field_->text();
    selectionLeft_ = selectedAutomatically_ ? -1 : field_->selectionStart();
    selectionLengthLeft_ = field_->selectionLength();
}

void LineWatcher::restoreUsersSelection()
{
    if (selectionLeft_ >= 0 && field_->text() == textLeft_)
        field_->setSelection(selectionLeft_, selectionLengthLeft_);
}

void LineWatcher::dropAutomaticSelection()
{
    if (selectedAutomatically_)
        field_->deselect();
}

} // namespace halvern
