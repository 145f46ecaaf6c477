// SPDX-License-Identifier: MIT
#include "dialog/job/job_options.h"

#include "dialog/options/ppd_model.h"

#include <algorithm>
#include <array>

namespace halvern {

namespace {

// Each would be a second voice beside a PPD keyword, or beside what the dialog has laid out.
constexpr std::array kDecidedByUs{
    "media",        "sides",         "print-quality",    "printer-resolution",
    "fit-to-page",  "fitplot",       "scaling",          "natural-scaling",
    "ppi",          "position",      "number-up-layout", "page-border",
    "output-order", "page-delivery", "print-color-mode",
};

struct Neutral {
    const char* name;
    const char* value;
};

// With each of these a server could turn, scale, mirror, label, leave out or reorder pages that are already
// laid out, and does so by a default of its own where a job says nothing.
constexpr std::array kNeutral{
    Neutral{"number-up", "1"},  Neutral{"orientation-requested", "3"}, Neutral{"landscape", "false"},
    Neutral{"mirror", "false"}, Neutral{"print-scaling", "none"},      Neutral{"page-set", "all"},
    Neutral{"booklet", "off"},  Neutral{"outputorder", "normal"},      Neutral{"page-label", ""},
};

// The keywords with which PPDs print on both sides.
constexpr std::array kDuplexKeywords{"Duplex", "JCLDuplex", "EFDuplex", "EFDuplexing", "KD03Duplex"};

// The platform's own settings have reverse-domain names; they are not options of a printer.
bool isPlatformSetting(const QString& key)
{
    return key.count(QLatin1Char('.')) >= 2;
}

// The server refuses a job that spells its word for no banner page otherwise; panels write "None".
QString asServerSpells(const QString& jobSheets)
{
    const QString none = QStringLiteral("none");
    return jobSheets.compare(none, Qt::CaseInsensitive) == 0 ? none : jobSheets;
}

void layOut(QMap<QString, QString>& merged, const JobInputs& inputs)
{
    for (const char* name : kDecidedByUs)
        merged.remove(QLatin1StringView(name));
    for (const Neutral& neutral : kNeutral)
        merged.insert(QLatin1StringView(neutral.name), QString::fromLatin1(neutral.value));
    const bool hasDuplex = std::ranges::any_of(
        kDuplexKeywords, [&](const char* keyword) { return merged.contains(QLatin1StringView(keyword)); });
    if (!hasDuplex)
        merged.insert(QStringLiteral("sides"), QStringLiteral("one-sided"));
    // The document has the chosen pages and no others.
    merged.remove(QStringLiteral("page-ranges"));
    if (inputs.pages > 0)
        merged.insert(QStringLiteral("page-ranges"), QStringLiteral("1-%1").arg(inputs.pages));
}

// The server looks at the one, filters at the other.
void collate(QMap<QString, QString>& merged, bool isCollated)
{
    merged.insert(QStringLiteral("multiple-document-handling"),
                  isCollated ? QStringLiteral("separate-documents-collated-copies")
                             : QStringLiteral("separate-documents-uncollated-copies"));
    merged.insert(QStringLiteral("Collate"), isCollated ? QStringLiteral("True") : QStringLiteral("False"));
}

} // namespace

OptionValues mergeJobOptions(const JobInputs& inputs)
{
    QMap<QString, QString> merged = inputs.values;
    for (auto it = inputs.settings.cbegin(); it != inputs.settings.cend(); ++it) {
        if (!isPlatformSetting(it.key()))
            merged.insert(it.key(), valueText(it.value()));
    }
    layOut(merged, inputs);
    collate(merged, inputs.isCollated);
    if (const auto sheets = merged.find(QStringLiteral("job-sheets")); sheets != merged.end())
        *sheets = asServerSpells(*sheets);
    merged.insert(QStringLiteral("copies"), QString::number(inputs.copies));
    OptionValues options;
    for (auto it = merged.cbegin(); it != merged.cend(); ++it)
        options.append({it.key(), it.value()});
    // The stock filters take such a text for a list of options, and what follows it for its members.
    std::ranges::stable_partition(
        options, [](const OptionValue& option) { return !option.value.startsWith(QLatin1Char('{')); });
    return options;
}

} // namespace halvern
