// SPDX-License-Identifier: MIT
#include "panels/simple/cover_page_panel.h"

#include "platform/foundation/log.h"
#include "platform/plugin_api/host_callback.h"
#include "platform/printing/print_settings.h"

namespace halvern {

namespace {

QString loggedValue(const QVariant& value)
{
    return value.isValid() ? value.toString() : QStringLiteral("(null)");
}

bool asksForNone(const QVariant& value)
{
    return value.typeId() == QMetaType::QString && value.toString() == QLatin1String("None");
}

} // namespace

bool RZUnavailablePDEHalvern::initWithCallback(const std::shared_ptr<HostCallback>& callback)
{
    if (!KSTRVLBasePDEHalvern::initWithCallback(callback))
        return false;
    saveValuesAndReturnError(nullptr);
    return true;
}

QStringList RZUnavailablePDEHalvern::supportedPPDOptionKeys()
{
    if (!cachedSupportedPPDOptionKeys)
        cachedSupportedPPDOptionKeys = QStringList{QStringLiteral("AP_CoverPage")};
    return *cachedSupportedPPDOptionKeys;
}

std::optional<QString> RZUnavailablePDEHalvern::nibName()
{
    return QStringLiteral("TessarinUnavailable");
}

std::optional<QString> RZUnavailablePDEHalvern::panelName()
{
    if (!thePDEName)
        thePDEName = localized(QStringLiteral("Cover Page"));
    return thePDEName;
}

std::optional<QString> RZUnavailablePDEHalvern::panelKind()
{
    return QStringLiteral("com.apple.print.pde.CoverPageKind");
}

bool RZUnavailablePDEHalvern::saveValuesAndReturnError(PanelError*)
{
    const QString key = QStringLiteral("job-sheets");
    const auto settings = pdePluginCallbackObject ? pdePluginCallbackObject->printSettings() : nullptr;
    if (!settings || !useConstraintHandling)
        return true;
    QVariant sheets;
    if (settings->getValue(key, sheets) != kPrintingOk || asksForNone(sheets))
        return true;
    logLine(QStringLiteral("Print settings:%1 = %2").arg(key, loggedValue(sheets)));
    if (settings->setValue(key, QStringLiteral("None"), false) != kPrintingOk)
        logLine(QStringLiteral("error setting PMPrintSettings value for %1").arg(key));
    if (settings->getValue(key, sheets) != kPrintingOk)
        logLine(QStringLiteral("error getting PMPrintSettings value for %1").arg(key));
    logLine(QStringLiteral("After change ... %1 = %2").arg(key, loggedValue(sheets)));
    return true;
}

bool RZUnavailablePDEHalvern::restoreValuesAndReturnError(PanelError* error)
{
    saveValuesAndReturnError(error);
    return true;
}

} // namespace halvern
