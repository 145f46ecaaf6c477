#include "dialog/job/job_options.h"

#include "dialog/options/ppd_model.h"

#include "platform/printing/cups_ppd.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace halvern {

namespace {

// What IPP limits a name and a text to.
constexpr qsizetype kLongestName = 255;
constexpr qsizetype kLongestText = 1023;

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

// Attributes that the server itself reads, and that need their IPP type.
constexpr std::array kServerAttributes{
    "copies",        "job-priority", "job-hold-until", "job-sheets",       "job-billing",
    "page-ranges",   "output-bin",   "finishings",     "print-scaling",    "multiple-document-handling",
    "print-quality", "media",        "sides",          "print-color-mode",
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

QString addJobOption(_ipp_s* request, const OptionValue& option)
{
    const QByteArray name = option.key.toUtf8();
    const QByteArray value = option.value.toUtf8();
    if (name.size() > kLongestName || value.size() > kLongestText || value.contains('\0')) {
        return QCoreApplication::translate("PpdModel",
                                           "The value of %1 is too long to send: it has %2 bytes, and %3 "
                                           "are possible. Shorten it.")
            .arg(option.key)
            .arg(value.size())
            .arg(kLongestText);
    }
    if (contains(kServerAttributes, option.key)) {
        // It splits lists at commas and knows the attributes' types.
        cupsEncodeOption(request, IPP_TAG_JOB, name.constData(), value.constData());
        return {};
    }
    const ipp_tag_t tag = value.size() > kLongestName ? IPP_TAG_TEXT : IPP_TAG_NAME;
    ippAddString(request, IPP_TAG_JOB, tag, name.constData(), nullptr, value.constData());
    return {};
}

std::optional<OptionValue> parseOption(const QString& text)
{
    const qsizetype equals = text.indexOf(QLatin1Char('='));
    if (equals <= 0 || text.left(equals).contains(QLatin1Char(' ')))
        return std::nullopt;
    return OptionValue{text.left(equals), text.mid(equals + 1)};
}

} // namespace halvern
