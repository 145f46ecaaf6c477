#include "panels/backprint/line_watcher.h"

#include <QApplication>
#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QLineEdit>

namespace halvern {

namespace {

// The field keeps its selection while a menu is open or another window is in front.
bool isPassing(Qt::FocusReason reason)
{
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
}

} // namespace

LineWatcher::LineWatcher(QLineEdit* field, std::function<void()> catchUp)
    : QObject(field), field_(field), catchUp_(std::move(catchUp))
{
    field->installEventFilter(this);
    connect(field, &QLineEdit::selectionChanged, this, [this] { selectedAutomatically_ = false; });
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
    if (event->type() == QEvent::FocusIn) {
        focusComes(static_cast<QFocusEvent*>(event)->reason());
    } else if (event->type() == QEvent::FocusOut && !isPassing(static_cast<QFocusEvent*>(event)->reason())) {
        focusLeaves();
    } else if (event->type() == QEvent::InputMethod) {
        composing_ = !static_cast<const QInputMethodEvent*>(event)->preeditString().isEmpty();
        if (!composing_ && postponed_)
            QMetaObject::invokeMethod(this, &LineWatcher::catchUp, Qt::QueuedConnection);
    }
    return false;
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
