// SPDX-License-Identifier: MIT
#include "panel_base/base_panel.h"

#include "platform/foundation/log.h"
#include "platform/plugin_api/host_callback.h"
#include "platform/printing/ppd.h"
#include "platform/printing/print_settings.h"

#include <QWidget>

namespace halvern {

QStringList KSTRVLBasePDEHalvern::supportedPPDOptionKeys()
{
    if (!cachedSupportedPPDOptionKeys) {
        QStringList keys;
        for (int tag = 1; const auto key = ppdOptionKeyForTag(tag); ++tag)
            keys.append(*key);
        cachedSupportedPPDOptionKeys = keys;
    }
    return *cachedSupportedPPDOptionKeys;
}

bool KSTRVLBasePDEHalvern::saveValuesAndReturnError(PanelError*)
{
    logEntered("saveValuesAndReturnError:");
    // Saving is the panel's leave: background waits stop.
    pdePluginDidUnload = true;
    if (!useConstraintHandling)
        writePPDSettingsToPrintSettingsOnTiger();
    return true;
}

bool KSTRVLBasePDEHalvern::restoreValuesAndReturnError(PanelError*)
{
    if (useConstraintHandling) {
        const auto settings = pdePluginCallbackObject ? pdePluginCallbackObject->printSettings() : nullptr;
        // One holder for all keys, not cleared between them: a key that finds nothing takes what the key
        // before it left.
        QVariant holder;
        const QStringList keys = supportedPPDOptionKeys();
        for (const QString& key : keys) {
            if (!ppd)
                break;
            if (const auto marked = ppd::markedChoice(ppd, key))
                holder = marked->keyword;
            else if (settings)
                settings->getValue(key, holder);
            QVariant value = holder;
            if (!value.isValid()) {
                if (const auto byDefault = defaultValueForOptionKey(key))
                    value = *byDefault;
            }
            setChoice_forKey(value, key);
        }
    } else {
        getPPDSettingsFromPrintSettingsOnTiger();
        if (!choiceDict || choiceDict->size() != supportedPPDOptionKeys().size())
            setDefaults();
    }
    if (_panelView)
        updateUI();
    return true;
}

QVariant KSTRVLBasePDEHalvern::printSystemValueForKey(const std::optional<QString>& key)
{
    if (!key)
        return {};
    if (const auto marked = ppd::markedChoice(ppd, *key))
        return marked->keyword;
    const auto settings = pdePluginCallbackObject ? pdePluginCallbackObject->printSettings() : nullptr;
    QVariant value;
    if (settings)
        settings->getValue(*key, value);
    return value;
}

void KSTRVLBasePDEHalvern::PPDOptionKeyValueDidChange_ppdChoice(const std::optional<QString>& key,
                                                                const QVariant& choice)
{
    if (!key || !choice.isValid() || !supportedPPDOptionKeys().contains(*key))
        return;
    setChoice_forKey(choice, key);
    updateUI();
}

void KSTRVLBasePDEHalvern::usePPDSettingsFromPrintSettingsOnTiger(bool) {}

void KSTRVLBasePDEHalvern::getPPDSettingsFromPrintSettingsOnTiger()
{
    usePPDSettingsFromPrintSettingsOnTiger(false);
}

void KSTRVLBasePDEHalvern::writePPDSettingsToPrintSettingsOnTiger()
{
    usePPDSettingsFromPrintSettingsOnTiger(true);
}

} // namespace halvern
