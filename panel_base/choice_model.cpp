// SPDX-License-Identifier: MIT
#include "panel_base/base_panel.h"

#include "panel_base/tags.h"
#include "platform/foundation/numbers.h"
#include "platform/foundation/user_defaults.h"
#include "platform/plugin_api/host_callback.h"
#include "platform/printing/ppd.h"
#include "platform/toolkit/beep.h"
#include "platform/toolkit/control.h"
#include "platform/toolkit/matrix.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>

namespace halvern {

namespace {

// How long the host has to settle after a refusal before the controls are refreshed.
constexpr int kRefreshDelayMs = 10;

QString strippedOfAllBut(QStringView kept, QStringView text)
{
    while (!text.isEmpty() && !kept.contains(text.front()))
        text = text.mid(1);
    while (!text.isEmpty() && !kept.contains(text.back()))
        text.chop(1);
    return text.toString();
}

QString integerChoice(const QString& text)
{
    // A user who has typed only a minus sign is still typing.
    if (text == QLatin1String("-"))
        return text;
    return QString::number(leadingInteger(strippedOfAllBut(u"-0123456789", text)));
}

QString onOff(bool on)
{
    return on ? QStringLiteral("True") : QStringLiteral("False");
}

} // namespace

std::optional<QString> KSTRVLBasePDEHalvern::ppdOptionKeyForTag(int)
{
    return std::nullopt;
}

QVariant KSTRVLBasePDEHalvern::ppdChoiceForTag(int)
{
    return {};
}

int KSTRVLBasePDEHalvern::tagForStringValue(const QVariant&)
{
    return 0;
}

void KSTRVLBasePDEHalvern::setChoice_forKey(const QVariant& choice, const std::optional<QString>& key)
{
    if (!choiceDict)
        choiceDict.emplace();
    if (choice.isValid() && key)
        choiceDict->insert(*key, choice);
}

QVariant KSTRVLBasePDEHalvern::storedChoice(const std::optional<QString>& key) const
{
    return key && choiceDict ? choiceDict->value(*key) : QVariant();
}

QVariant KSTRVLBasePDEHalvern::newChoiceForSender(QWidget* sender)
{
    if (const auto* popup = qobject_cast<QComboBox*>(sender))
        return control::selectedRepresentedObject(popup);
    if (const auto* matrix = qobject_cast<Matrix*>(sender)) {
        const std::optional<int> tag = matrix->selectedTag();
        return tag ? ppdChoiceForTag(*tag) : QVariant();
    }
    if (const auto* field = control::asTextField(sender))
        return integerChoice(field->text());
    if (control::asButton(sender))
        return onOff(control::state(sender) != 0);
    const auto text = control::stringValue(sender);
    return text ? QVariant(*text) : QVariant();
}

QString KSTRVLBasePDEHalvern::floatValueForSender_format_allowsNegative(QWidget* sender, const char* format,
                                                                        bool allowsNegative)
{
    QString text;
    if (const auto shown = control::stringValue(sender))
        text = *shown;
    else if (const auto number = control::floatValue(sender))
        text = shortestDouble(*number);
    const QString number = strippedOfAllBut(allowsNegative ? u".0123456789-" : u".0123456789", text);
    return formatDouble(format, leadingDouble(number));
}

bool KSTRVLBasePDEHalvern::markChoice_forPPDOptionKey_fromSender(const QVariant& choice,
                                                                 const std::optional<QString>& key,
                                                                 QWidget* sender)
{
    if (!choice.isValid() || !key) {
        rejectChoice_forPPDOptionKey_fromSender(choice, key, sender);
        return false;
    }
    if (!validateChoice_forPPDOptionKey_fromSender(choice, key, sender)) {
        rejectChoice_forPPDOptionKey_fromSender(choice, key, sender);
        return true;
    }
    if (useConstraintHandling &&
        !pdePluginCallbackObject->willChangePPDOptionKeyValue_ppdChoice(*key, choice)) {
        // The host shows the conflict itself; the panel goes back to what the host has.
        const auto marked = ppd::markedChoice(ppd, *key);
        setChoice_forKey(marked ? QVariant(marked->keyword) : QVariant(), key);
        performDelayed(kRefreshDelayMs, &KSTRVLBasePDEHalvern::updateUI);
        return false;
    }
    setChoice_forKey(choice, key);
    if (sender) {
        const QVariant shown = displayFormatForString_forPPDOptionKey(choice, *key);
        QWidget* companion = controlBeside(sender, control::tagOf(sender) | tags::kCompanion);
        updateControl_withValue(companion, shown);
    }
    return true;
}

bool KSTRVLBasePDEHalvern::validateChoice_forPPDOptionKey_fromSender(const QVariant& choice,
                                                                     const std::optional<QString>&,
                                                                     QWidget* sender)
{
    if (!control::asTextField(sender))
        return true;
    const QWidget* companion = controlBeside(sender, tags::withoutCompanionBits(control::tagOf(sender)));
    const std::optional<double> maximum = control::maxValue(companion);
    const std::optional<double> minimum = control::minValue(companion);
    if (!maximum && !minimum)
        return true;
    const double number = leadingDouble(choice.toString());
    return number <= maximum.value_or(0.0) && number >= minimum.value_or(0.0);
}

void KSTRVLBasePDEHalvern::rejectChoice_forPPDOptionKey_fromSender(const QVariant& choice,
                                                                   const std::optional<QString>& key,
                                                                   QWidget* sender)
{
    beep();
    speakString(QStringLiteral("rejecting choice %1 for %2").arg(choice.toString(), key.value_or(QString())));
    QVariant kept = storedChoice(key);
    if (useConstraintHandling && key) {
        if (const auto marked = ppd::markedChoice(ppd, *key))
            kept = marked->keyword;
    }
    updateControl_withValue(sender, kept);
}

QVariant KSTRVLBasePDEHalvern::displayFormatForString_forPPDOptionKey(const QVariant& choice, const QString&)
{
    return choice;
}

void KSTRVLBasePDEHalvern::setDefaults()
{
    const QStringList keys = supportedPPDOptionKeys();
    for (const QString& key : keys) {
        if (const auto value = defaultValueForOptionKey(key))
            markChoice_forPPDOptionKey_fromSender(*value, key, nullptr);
    }
}

void KSTRVLBasePDEHalvern::setGlobalDefaultsObject_forKey(const QVariant& object,
                                                          const std::optional<QString>& key)
{
    if (!object.isValid() || !key)
        return;
    UserDefaults::standardUserDefaults().changeGlobal(
        [&](QVariantMap& values) { values.insert(*key, object); });
}

} // namespace halvern
