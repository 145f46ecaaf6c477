// SPDX-License-Identifier: MIT
#include "dialog/options/ppd_lookup.h"

#include "platform/foundation/numbers.h"
#include "platform/printing/cups_ppd.h"
#include "platform/printing/ppd.h"

#include <QCoreApplication>
#include <QLocale>
#include <QtNumeric>

#include <optional>

namespace halvern::ppd_lookup {

namespace {

struct PpdLookupWords {
    Q_DECLARE_TR_FUNCTIONS(PpdLookup)
};

QString outsideLimits(const QString& optionText, double low, double high)
{
    const QLocale locale;
    return PpdLookupWords::tr("%1 must be a number from %2 to %3.")
        .arg(optionText, locale.toString(low), locale.toString(high));
}

std::optional<double> number(const QString& value, bool integer, NumberReading reading)
{
    if (reading == NumberReading::leading)
        return leadingDouble(value);
    bool isNumber = false;
    const double found = integer ? value.toInt(&isNumber) : QLocale::c().toDouble(value, &isNumber);
    // The conversion takes blanks and "nan" for numbers; a printer's filter would not.
    const bool isPlain = isNumber && qIsFinite(found) && value == value.trimmed();
    return isPlain ? std::optional(found) : std::nullopt;
}

QString numberProblem(const QString& optionText, std::optional<double> number, const ppd::Range& range)
{
    const bool fits = number && *number >= range.minimum && *number <= range.maximum;
    return fits ? QString() : outsideLimits(optionText, range.minimum, range.maximum);
}

QString lengthProblem(const QString& optionText, const QString& value, int low, int high)
{
    const qsizetype length = value.toUtf8().size();
    if (length >= low && length <= high)
        return {};
    return PpdLookupWords::tr("%1 must have %2 to %3 characters.").arg(optionText).arg(low).arg(high);
}

} // namespace

ppd_option_t* option(ppd_file_t* file, const QString& key)
{
    return ppdFindOption(file, key.toUtf8().constData());
}

ppd_choice_t* listedChoice(ppd_file_t* file, const QString& key, const QString& choice)
{
    ppd_option_t* found = option(file, key);
    const QByteArray wanted = choice.toUtf8();
    const bool hasCustom = ppdFindCustomOption(file, key.toUtf8().constData()) != nullptr;
    for (int i = 0; found && i < found->num_choices; ++i) {
        ppd_choice_t& listed = found->choices[i];
        if (qstricmp(listed.choice, wanted.constData()) == 0 && !(hasCustom && wanted == "Custom"))
            return &listed;
    }
    return nullptr;
}

ppd_cparam_t* customParameter(ppd_file_t* file, const QString& key)
{
    ppd_coption_t* custom = ppdFindCustomOption(file, key.toUtf8().constData());
    if (!custom || cupsArrayCount(custom->params) != 1)
        return nullptr;
    return ppdFirstCustomParam(custom);
}

bool hasSecret(ppd_file_t* file, const QString& key)
{
    ppd_coption_t* custom = ppdFindCustomOption(file, key.toUtf8().constData());
    for (const ppd_cparam_t* each = custom ? ppdFirstCustomParam(custom) : nullptr; each;
         each = ppdNextCustomParam(custom)) {
        if (each->type == PPD_CUSTOM_PASSCODE || each->type == PPD_CUSTOM_PASSWORD)
            return true;
    }
    return false;
}

QString customValueProblem(ppd_file_t* file, const ppd_cparam_t& parameter, const QString& key,
                           const QString& optionText, const QString& value, NumberReading reading)
{
    switch (parameter.type) {
    case PPD_CUSTOM_INT:
    case PPD_CUSTOM_REAL:
    case PPD_CUSTOM_POINTS:
    case PPD_CUSTOM_CURVE:
    case PPD_CUSTOM_INVCURVE: {
        // The limits as the PPD writes them; without usable ones the printer has to know.
        const std::optional<ppd::Range> range = ppd::customRange(file, key);
        const bool isInteger = parameter.type == PPD_CUSTOM_INT;
        return range ? numberProblem(optionText, number(value, isInteger, reading), *range) : QString();
    }
    case PPD_CUSTOM_STRING:
    case PPD_CUSTOM_PASSCODE:
    case PPD_CUSTOM_PASSWORD: {
        const ppd::Range lengths = ppd::parameterLimits(parameter);
        return lengthProblem(optionText, value, int(lengths.minimum), int(lengths.maximum));
    }
    default:
        return {};
    }
}

void unmark(ppd_file_t* file, const QString& key)
{
    ppd_option_t* found = option(file, key);
    for (int i = 0; found && i < found->num_choices; ++i) {
        if (!found->choices[i].marked)
            continue;
        cupsArrayRemove(file->marked, &found->choices[i]);
        found->choices[i].marked = 0;
    }
}

} // namespace halvern::ppd_lookup
