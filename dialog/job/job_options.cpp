#include "dialog/job/job_options.h"

#include "dialog/options/ppd_model.h"

#include <algorithm>
#include <array>

namespace halvern {

namespace {

// Each would be a second voice beside a PPD keyword, or scale and turn a page that we have already laid out.
constexpr std::array kDecidedByUs{
    "media",
    "sides",
    "print-quality",
    "printer-resolution",
    "orientation-requested",
    "print-scaling",
    "fit-to-page",
    "fitplot",
    "scaling",
    "natural-scaling",
    "ppi",
    "landscape",
    "position",
    "copies",
    "number-up",
    "print-color-mode",
    "multiple-document-handling",
};

template <size_t N> bool contains(const std::array<const char*, N>& names, const QString& name)
{
    return std::ranges::any_of(names, [&](const char* known) { return name == QLatin1StringView(known); });
}

// The platform's own settings have reverse-domain names; they are not options of a printer.
bool isPlatformSetting(const QString& key)
{
    return key.count(QLatin1Char('.')) >= 2;
}

QString duplexForSides(const QString& sides)
{
    if (sides == QLatin1StringView("two-sided-long-edge"))
        return QStringLiteral("DuplexNoTumble");
    if (sides == QLatin1StringView("two-sided-short-edge"))
        return QStringLiteral("DuplexTumble");
    return QStringLiteral("None");
}

// The server refuses a job that spells its word for no banner page otherwise; panels write "None".
QString asServerSpells(const QString& jobSheets)
{
    const QString none = QStringLiteral("none");
    return jobSheets.compare(none, Qt::CaseInsensitive) == 0 ? none : jobSheets;
}

} // namespace

OptionValues mergeJobOptions(const JobInputs& inputs)
{
    QMap<QString, QString> merged = inputs.values;
    for (auto it = inputs.settings.cbegin(); it != inputs.settings.cend(); ++it) {
        if (!isPlatformSetting(it.key()))
            merged.insert(it.key(), valueText(it.value()));
    }
    if (inputs.hasPpd) {
        for (const char* name : kDecidedByUs)
            merged.remove(QLatin1StringView(name));
    }
    if (const auto sheets = merged.find(QStringLiteral("job-sheets")); sheets != merged.end())
        *sheets = asServerSpells(*sheets);
    merged.insert(QStringLiteral("copies"), QString::number(inputs.copies));
    merged.insert(QStringLiteral("print-scaling"), QStringLiteral("none"));
    OptionValues options;
    for (auto it = merged.cbegin(); it != merged.cend(); ++it)
        options.append({it.key(), it.value()});
    // The stock filters take such a text for a list of options, and what follows it for its members.
    std::ranges::stable_partition(
        options, [](const OptionValue& option) { return !option.value.startsWith(QLatin1Char('{')); });
    return options;
}

OptionValues inPpdTerms(const OptionValues& options)
{
    OptionValues result;
    for (const OptionValue& option : options) {
        if (option.key == QLatin1StringView("media"))
            result.append({QStringLiteral("PageSize"), option.value.section(QLatin1Char(','), 0, 0)});
        else if (option.key == QLatin1StringView("sides"))
            result.append({QStringLiteral("Duplex"), duplexForSides(option.value)});
        else if (!contains(kDecidedByUs, option.key))
            result.append(option);
    }
    return result;
}

} // namespace halvern
