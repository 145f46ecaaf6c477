// SPDX-License-Identifier: MIT
#include "panels/backprint/backprint_panel.h"

#include "platform/foundation/log.h"
#include "platform/plugin_api/host_callback.h"
#include "platform/printing/print_settings.h"

namespace halvern {

bool RZBackprintPDEHalvern::saveValuesAndReturnError(PanelError*)
{
    const auto settings = pdePluginCallbackObject ? pdePluginCallbackObject->printSettings() : nullptr;
    if (!settings || !useConstraintHandling)
        return true;
    const QStringList keys = supportedPPDOptionKeys();
    for (const QString& key : keys) {
        QVariant value = storedChoice(key);
        if (key.startsWith(QLatin1StringView("CVP")) && value.typeId() == QMetaType::QString)
            value = stringWithSafeCharacters(value.toString());
        const int status = settings->setValue(key, value, false);
        if (status != kPrintingOk)
            logLine(QStringLiteral("PDE got an error %1 setting the value for %2 !")
                        .arg(QString::number(status), key));
    }
    return true;
}

bool RZBackprintPDEHalvern::restoreValuesAndReturnError(PanelError*)
{
    const auto settings = pdePluginCallbackObject ? pdePluginCallbackObject->printSettings() : nullptr;
    const QStringList keys = supportedPPDOptionKeys();
    if (settings && useConstraintHandling) {
        for (const QString& key : keys) {
            QVariant value;
            if (settings->getValue(key, value) != kPrintingOk) {
                const std::optional<QString> byDefault = defaultValueForOptionKey(key);
                value = byDefault ? QVariant(*byDefault) : QVariant();
            }
            setChoice_forKey(value, key);
        }
    } else {
        getPPDSettingsFromPrintSettingsOnTiger();
        if (!choiceDict || choiceDict->size() != keys.size())
            setDefaults();
    }
    updateUI();
    return true;
}

} // namespace halvern
