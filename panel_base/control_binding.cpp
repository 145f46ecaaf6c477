// SPDX-License-Identifier: MIT
#include "panel_base/base_panel.h"

#include "panel_base/tags.h"
#include "platform/printing/ppd.h"
#include "platform/toolkit/control.h"
#include "platform/toolkit/matrix.h"
#include "platform/toolkit/plain_text.h"
#include "platform/toolkit/user_action.h"
#include "platform/toolkit/view_search.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>

namespace halvern {

namespace {

// Where the walk over a panel's controls goes on after a group that ended. `beyond` is the number one above
// the first missing tag; nothing ends the walk.
std::optional<int> nextGroup(int beyond)
{
    if (tags::has(beyond, tags::kIncrement))
        return std::nullopt;
    if (tags::has(beyond, tags::kCompanion))
        return tags::kDecrement + 1;
    if (tags::has(beyond, tags::kDecrement))
        return tags::kIncrement + 1;
    return tags::kCompanion + 1;
}

} // namespace

QWidget* KSTRVLBasePDEHalvern::view_controlForTag(QWidget* view, int tag)
{
    return viewWithTag(view ? view : _panelView.data(), tag);
}

QWidget* KSTRVLBasePDEHalvern::controlBeside(QWidget* control, int tag)
{
    // A control without a parent stands in the panel's own view.
    return control ? view_controlForTag(control->parentWidget(), tag) : nullptr;
}

bool KSTRVLBasePDEHalvern::isControlSupportedForTag(int)
{
    return true;
}

bool KSTRVLBasePDEHalvern::enablerState(QWidget* toggle)
{
    return control::state(toggle) != 0;
}

void KSTRVLBasePDEHalvern::setControlsEnabledByToggle(QWidget* toggle)
{
    const bool on = enablerState(toggle);
    std::optional<int> tag = 1;
    while (tag) {
        if (QWidget* found = controlBeside(toggle, *tag)) {
            control::setEnabledWithCaptions(found, isControlSupportedForTag(control::tagOf(found)) && on);
            ++*tag;
        } else {
            tag = nextGroup(*tag + 1);
        }
    }
}

int KSTRVLBasePDEHalvern::indexOfMenuItem_forValue(QWidget* popup, const QVariant& value)
{
    const auto* menu = qobject_cast<QComboBox*>(popup);
    return menu ? control::indexOfItemWithRepresentedObject(menu, value) : 0;
}

void KSTRVLBasePDEHalvern::updateControl_withValue(QWidget* control, const QVariant& value)
{
    if (!control::isControl(control) || value.typeId() != QMetaType::QString)
        return;
    const QString choice = value.toString();
    if (auto* popup = qobject_cast<QComboBox*>(control)) {
        popup->setCurrentIndex(indexOfMenuItem_forValue(popup, value));
    } else if (auto* button = control::asButton(control)) {
        button->setChecked(choice.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0);
        if (tags::has(control::tagOf(button), tags::kToggle))
            setControlsEnabledByToggle(button);
    } else if (auto* matrix = qobject_cast<Matrix*>(control)) {
        matrix->selectCellWithTag(tagForStringValue(value));
    } else if (control::setStringValue(control, choice)) {
        control::setStringValue(controlBeside(control, control::tagOf(control) ^ tags::kCompanion), choice);
    }
}

void KSTRVLBasePDEHalvern::updateUI()
{
    if (!panelView())
        return;
    showInTagRun(1);
    showInTagRun(tags::kToggle);
}

// Shows the stored choices from a tag upwards; one missing tag is passed over, two in a row end the run.
void KSTRVLBasePDEHalvern::showInTagRun(int firstTag)
{
    bool missed = false;
    for (int tag = firstTag;; ++tag) {
        QWidget* found = view_controlForTag(_panelView, tag);
        if (!found) {
            if (missed)
                return;
            missed = true;
            continue;
        }
        if (!control::isControl(found))
            return;
        missed = false;
        updateControl_withValue(found, storedChoice(ppdOptionKeyForTag(tag)));
    }
}

void KSTRVLBasePDEHalvern::changePrinterSetting(QWidget* sender)
{
    if (!control::isControl(sender))
        return;
    const int tag = control::tagOf(sender);
    const std::optional<QString> key = ppdOptionKeyForTag(tag);
    QVariant choice = newChoiceForSender(sender);
    if (tag == tags::kRestoreDefaults) {
        const UserAction everything(UserAction::Reach::allOptions);
        setDefaults();
        updateUI();
        return;
    }
    if (tags::has(tag, tags::kToggle)) {
        setControlsEnabledByToggle(sender);
        choice = control::state(sender) != 0 ? QStringLiteral("True") : QStringLiteral("False");
    }
    markChoice_forPPDOptionKey_fromSender(choice, key, sender);
}

void KSTRVLBasePDEHalvern::populateMenuObjectsInView(QWidget* view)
{
    for (int tag = 0; QWidget* found = view_controlForTag(view, tag); ++tag) {
        auto* popup = qobject_cast<QComboBox*>(found);
        const std::optional<QString> key = popup ? ppdOptionKeyForTag(tag) : std::nullopt;
        if (key)
            fillMenu(popup, *key);
    }
}

void KSTRVLBasePDEHalvern::fillMenu(QComboBox* popup, const QString& key)
{
    const auto choices = ppd::choices(ppd, key);
    if (!choices)
        return;
    popup->clear();
    for (const ppd::Choice& choice : *choices) {
        QString title = localized(choice.keyword);
        if (title == choice.keyword || title.isEmpty())
            title = localized(choice.text);
        control::addItem(popup, title, choice.keyword);
    }
    const auto byDefault = ppd::defaultChoice(ppd, key);
    popup->setCurrentIndex(
        control::indexOfItemWithRepresentedObject(popup, byDefault ? QVariant(*byDefault) : QVariant()));
}

void KSTRVLBasePDEHalvern::stepControl(QWidget* button, int roleBits, int direction)
{
    const int tag = control::tagOf(button);
    QWidget* target = controlBeside(button, tags::has(tag, roleBits) ? tag ^ roleBits : tag);
    const std::optional<double> limit = direction > 0 ? control::maxValue(target) : control::minValue(target);
    const std::optional<int> value = control::intValue(target);
    if (!limit || !value || !control::answersSetIntValue(target))
        return;
    const double stepped = double(*value) + direction;
    if (direction > 0 ? stepped > *limit : stepped < *limit)
        return;
    control::setIntValue(target, int(stepped));
    changePrinterSetting(target);
}

void KSTRVLBasePDEHalvern::incrementControl(QWidget* button)
{
    stepControl(button, tags::kIncrement, +1);
}

void KSTRVLBasePDEHalvern::decrementControl(QWidget* button)
{
    stepControl(button, tags::kDecrement, -1);
}

void KSTRVLBasePDEHalvern::sendUICommand(QWidget*) {}

void KSTRVLBasePDEHalvern::controlTextDidChange(QLineEdit* field)
{
    changePrinterSetting(field);
}

void KSTRVLBasePDEHalvern::controlTextDidEndEditing(QLineEdit* field)
{
    if (field->text() == QLatin1String("-"))
        control::setStringValue(field, QStringLiteral("0"));
}

void KSTRVLBasePDEHalvern::setToolTip_fromSender(const QString& toolTip, QWidget* sender)
{
    if (sender)
        setPlainToolTip(sender, toolTip);
}

} // namespace halvern
