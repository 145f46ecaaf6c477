// SPDX-License-Identifier: MIT
#include "panel_base/base_panel.h"

#include "platform/foundation/log.h"
#include "platform/plugin_api/host_callback.h"
#include "platform/printing/ppd.h"
#include "platform/printing/printer.h"

#include <QFile>
#include <QWidget>

namespace halvern {

QString KSTRVLBasePDEHalvern::printerDeviceURI()
{
    if (const auto known = deviceURI.get())
        return *known;
    const auto printer = pdePluginCallbackObject ? pdePluginCallbackObject->PMPrinter() : nullptr;
    const std::optional<QString> uri = printer ? printer->copyDeviceURI() : std::nullopt;
    if (!uri)
        return QStringLiteral("null://");
    deviceURI.set(std::make_shared<const QString>(*uri));
    return *uri;
}

std::optional<QString> KSTRVLBasePDEHalvern::destinationName()
{
    const auto printer = pdePluginCallbackObject ? pdePluginCallbackObject->PMPrinter() : nullptr;
    return printer ? printer->id() : std::nullopt;
}

std::optional<QByteArray> KSTRVLBasePDEHalvern::ppdSavedDataForAttribute_forPPD(const QString& attribute,
                                                                                ppd_file_t* file)
{
    const QByteArray text = ppd::attributeRun(file, attribute);
    if (text.isEmpty())
        return std::nullopt;
    return ppd::decodeBase64(text);
}

std::optional<QByteArray> KSTRVLBasePDEHalvern::ppdSavedDataForAttribute(const QString& attribute)
{
    const std::optional<QString> destination = destinationName();
    const std::optional<QString> path = destination ? ppd::fetch(*destination) : std::nullopt;
    if (!path)
        return std::nullopt;
    ppd::File fresh = ppd::open(*path);
    // A file that libcups cannot read stays where it is, for whoever looks into the failure.
    if (!fresh)
        return std::nullopt;
    auto data = ppdSavedDataForAttribute_forPPD(attribute, fresh.get());
    fresh.reset();
    QFile::remove(*path);
    return data;
}

QMap<QString, QString> KSTRVLBasePDEHalvern::ppdValuesForAttributes(const QStringList& attributes)
{
    QMap<QString, QString> values;
    const std::optional<QString> destination = destinationName();
    if (attributes.isEmpty() || !destination)
        return values;
    const std::optional<QString> path = ppd::fetch(*destination);
    if (!path)
        return values;
    ppd::File fresh = ppd::open(*path);
    if (!fresh) {
        logLine(QString::asprintf("failed to open fresh ppd = %p", static_cast<void*>(fresh.get())));
        return values;
    }
    for (const QString& attribute : attributes) {
        logLine(QStringLiteral("searching fresh ppd for key %1").arg(attribute));
        if (const auto value = ppd::attribute(fresh.get(), attribute))
            values.insert(attribute, *value);
    }
    fresh.reset();
    QFile::remove(*path);
    return values;
}

std::optional<QString> KSTRVLBasePDEHalvern::ppdValueForAttribute(const QString& attribute)
{
    const QMap<QString, QString> values = ppdValuesForAttributes({attribute});
    const auto found = values.constFind(attribute);
    return found == values.constEnd() ? std::nullopt : std::optional<QString>(*found);
}

std::optional<QString>
KSTRVLBasePDEHalvern::cupsValueForAttribute_forPPD(const std::optional<QString>& attribute, ppd_file_t* file)
{
    return attribute ? ppd::attribute(file, *attribute) : std::nullopt;
}

std::optional<QString>
KSTRVLBasePDEHalvern::cupsDefaultChoiceForOption_forPPD(const std::optional<QString>& option,
                                                        ppd_file_t* file)
{
    if (!option)
        return std::nullopt;
    if (auto choice = ppd::defaultChoice(file, *option))
        return choice;
    // Our PPDs name the default of a value that is no option with "Default" at the end of the keyword.
    return ppd::attribute(file, *option + QStringLiteral("Default"));
}

std::optional<QString> KSTRVLBasePDEHalvern::cupsChoiceForOption_forPPD(const std::optional<QString>& option,
                                                                        ppd_file_t* file)
{
    if (!option)
        return std::nullopt;
    if (const auto marked = ppd::markedChoice(file, *option))
        return marked->keyword;
    return cupsDefaultChoiceForOption_forPPD(option, file);
}

std::optional<QString> KSTRVLBasePDEHalvern::cupsOptionValueForKey(const std::optional<QString>& key)
{
    return cupsChoiceForOption_forPPD(key, ppd);
}

std::optional<QString> KSTRVLBasePDEHalvern::defaultValueForOptionKey(const std::optional<QString>& key)
{
    return cupsDefaultChoiceForOption_forPPD(key, ppd);
}

} // namespace halvern
