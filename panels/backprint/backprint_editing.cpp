// SPDX-License-Identifier: MIT
#include "panels/backprint/backprint_panel.h"

#include "panels/backprint/line_watcher.h"
#include "platform/maker/backprint_text.h"
#include "platform/toolkit/beep.h"
#include "platform/toolkit/control.h"

#include <QLineEdit>
#include <QScopedValueRollback>

namespace halvern {

QString RZBackprintPDEHalvern::stringWithSafeCharacters(const QString& string)
{
    return backprint::stringWithSafeCharacters(string);
}

QString RZBackprintPDEHalvern::stringWithUnsafeCharacters(const QString& string)
{
    return backprint::stringWithUnsafeCharacters(string);
}

QString RZBackprintPDEHalvern::limitCVPValue(const QString& text)
{
    return backprint::limitCVPValue(text);
}

QVariant RZBackprintPDEHalvern::newChoiceForSender(QWidget* sender)
{
    const std::optional<QString> text = control::stringValue(sender);
    return text ? stringWithSafeCharacters(*text) : QVariant();
}

void RZBackprintPDEHalvern::updateControl_withValue(QWidget* control, const QVariant& value)
{
    QLineEdit* field = control::asTextField(control);
    if (!field)
        KSTRVLBasePDEHalvern::updateControl_withValue(control, value);
    else if (value.typeId() == QMetaType::QString)
        control::setStringValue(field, stringWithUnsafeCharacters(value.toString()));
}

void RZBackprintPDEHalvern::controlTextDidChange(QLineEdit* field)
{
    if (rewriting)
        return;
    leaveRefusedHistory(field);
    const backprint::TypedText typed = backprint::afterTyping(field->text(), safeSet);
    setChoice_forKey(typed.text, ppdOptionKeyForTag(control::tagOf(field)));
    if (!typed.refused)
        return;
    // Rewriting a field in which an input method is composing would destroy what it is about to say: the line
    // is rewritten when the composition ends.
    if (LineWatcher* watcher = LineWatcher::of(field); watcher && watcher->isComposing()) {
        watcher->postpone();
        return;
    }
    rewriteLine(field, typed.text);
    beep();
}

void RZBackprintPDEHalvern::controlTextDidEndEditing(QLineEdit* field)
{
    if (LineWatcher* watcher = LineWatcher::of(field); watcher && watcher->takePostponed()) {
        rewriteLine(field, backprint::afterTyping(field->text(), safeSet).text);
        beep();
    }
    const QString limited = limitCVPValue(field->text());
    if (limited != field->text())
        rewriteLine(field, limited);
    setChoice_forKey(stringWithSafeCharacters(limited), ppdOptionKeyForTag(control::tagOf(field)));
    changePrinterSetting(field);
}

// Replaces the text as an edit of the field's own, so that undoing reaches beyond it; the caret stays where
// it is as far as the text goes.
void RZBackprintPDEHalvern::rewriteLine(QLineEdit* field, const QString& text)
{
    const QScopedValueRollback<bool> guard(rewriting, true);
    const int caret = field->cursorPosition();
    field->selectAll();
    field->insert(text);
    field->setCursorPosition(qMin<int>(caret, int(text.size())));
}

// The field's history holds the texts that were refused, too. Undoing must not stop at one of them: it would
// be refused again, and nothing before it could ever be reached.
void RZBackprintPDEHalvern::leaveRefusedHistory(QLineEdit* field)
{
    const QScopedValueRollback<bool> guard(rewriting, true);
    // Only undoing and redoing leave something to redo.
    while (field->isRedoAvailable() && field->isUndoAvailable() &&
           backprint::afterTyping(field->text(), safeSet).refused)
        field->undo();
}

CharacterRange RZBackprintPDEHalvern::textView_willChangeSelectionFromCharacterRange_toCharacterRange(
    QWidget*, CharacterRange, CharacterRange proposed)
{
    return proposed;
}

} // namespace halvern
