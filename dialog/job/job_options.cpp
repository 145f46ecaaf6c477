// SPDX-License-Identifier: MIT
#include "dialog/job/job_options.h"

#include "dialog/options/given_options.h"
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

} // namespace

JobValues::JobValues(const JobInputs& inputs) : base_(inputs.values)
{
    for (auto it = inputs.settings.cbegin(); it != inputs.settings.cend(); ++it) {
        if (!isPlatformSetting(it.key()))
            over_.insert(it.key(), valueText(it.value()));
    }
    layOut(inputs);
    collate(inputs.isCollated);
    const QString sheets = QStringLiteral("job-sheets");
    if (contains(sheets))
        over_.insert(sheets, asServerSpells(value(sheets)));
    over_.insert(QStringLiteral("copies"), QString::number(inputs.copies));
}

void JobValues::layOut(const JobInputs& inputs)
{
    for (const char* name : kDecidedByUs)
        over_.insert(QLatin1StringView(name), std::nullopt);
    for (const Neutral& neutral : kNeutral)
        over_.insert(QLatin1StringView(neutral.name), QString::fromLatin1(neutral.value));
    leaveToThePrinter();
    const bool hasDuplex = std::ranges::any_of(
        kDuplexKeywords, [this](const char* keyword) { return contains(QLatin1StringView(keyword)); });
    if (!hasDuplex)
        over_.insert(QStringLiteral("sides"), QStringLiteral("one-sided"));
    // The document has the chosen pages and no others.
    over_.insert(QStringLiteral("page-ranges"),
                 inputs.pages > 0 ? std::optional(QStringLiteral("1-%1").arg(inputs.pages)) : std::nullopt);
}

// Filters do not look at a name's case: "outputorder" would overrule a printer's own "OutputOrder".
void JobValues::leaveToThePrinter()
{
    for (auto it = base_.keyBegin(); it != base_.keyEnd(); ++it) {
        const auto isSame = [&](const Neutral& neutral) {
            const QLatin1StringView name(neutral.name);
            return *it != name && it->compare(name, Qt::CaseInsensitive) == 0;
        };
        const auto* same = std::ranges::find_if(kNeutral, isSame);
        if (same != kNeutral.end())
            over_.remove(QLatin1StringView(same->name));
    }
}

// The server looks at the one, filters at the other.
void JobValues::collate(bool isCollated)
{
    over_.insert(QStringLiteral("multiple-document-handling"),
                 isCollated ? QStringLiteral("separate-documents-collated-copies")
                            : QStringLiteral("separate-documents-uncollated-copies"));
    over_.insert(QStringLiteral("Collate"), isCollated ? QStringLiteral("True") : QStringLiteral("False"));
}

QString JobValues::value(const QString& key) const
{
    const auto said = over_.constFind(key);
    return said != over_.cend() ? said->value_or(QString()) : base_.value(key);
}

bool JobValues::contains(const QString& key) const
{
    const auto said = over_.constFind(key);
    return said != over_.cend() ? said->has_value() : base_.contains(key);
}

template <typename Use> void JobValues::forEach(Use use) const
{
    auto said = over_.cbegin();
    const auto useSaid = [&] {
        if (*said)
            use(said.key(), **said);
        ++said;
    };
    for (auto it = base_.cbegin(); it != base_.cend(); ++it) {
        while (said != over_.cend() && said.key() < it.key())
            useSaid();
        if (said != over_.cend() && said.key() == it.key())
            useSaid();
        else
            use(it.key(), *it);
    }
    while (said != over_.cend())
        useSaid();
}

QStringList JobValues::differingFrom(const QMap<QString, QString>& others) const
{
    QStringList keys;
    auto other = others.cbegin();
    forEach([&](const QString& key, const QString& value) {
        while (other != others.cend() && other.key() < key)
            ++other;
        const bool isThere = other != others.cend() && other.key() == key;
        if (!isThere || *other != value)
            keys.append(key);
    });
    return keys;
}

OptionValues JobValues::list() const
{
    OptionValues options;
    options.reserve(base_.size() + over_.size());
    forEach([&](const QString& key, const QString& value) { options.append({key, value}); });
    // The stock filters take such a text for a list of options, and what follows it for its members.
    std::stable_partition(options.begin(), options.end(), [](const OptionValue& option) {
        return !option.value.startsWith(QLatin1Char('{'));
    });
    return options;
}

OptionValues mergeJobOptions(const JobInputs& inputs)
{
    return JobValues(inputs).list();
}

} // namespace halvern
