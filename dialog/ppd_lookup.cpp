#include "dialog/ppd_lookup.h"

#include "platform/printing/cups_ppd.h"

#include <QCoreApplication>
#include <QLocale>
#include <QtNumeric>

namespace halvern::ppd_lookup {

namespace {

QString words(const char* text)
{
    return QCoreApplication::translate("PpdModel", text);
}

QString outsideLimits(const QString& optionText, double low, double high)
{
    const QLocale locale;
    return words(QT_TRANSLATE_NOOP("PpdModel", "%1 must be a number from %2 to %3."))
        .arg(optionText, locale.toString(low), locale.toString(high));
}

QString numberProblem(const QString& optionText, const QString& value, double low, double high, bool whole)
{
    bool isNumber = false;
    const double number = whole ? value.toInt(&isNumber) : QLocale::c().toDouble(value, &isNumber);
    // The conversion takes blanks and "nan" for numbers; a printer's filter would not.
    const bool isPlain = isNumber && qIsFinite(number) && value == value.trimmed();
    return isPlain && number >= low && number <= high ? QString() : outsideLimits(optionText, low, high);
}

QString lengthProblem(const QString& optionText, const QString& value, int low, int high)
{
    const qsizetype length = value.toUtf8().size();
    if (length >= low && length <= high)
        return {};
    return words(QT_TRANSLATE_NOOP("PpdModel", "%1 must have %2 to %3 characters."))
        .arg(optionText)
        .arg(low)
        .arg(high);
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

QString customValueProblem(const ppd_cparam_t& parameter, const QString& optionText, const QString& value)
{
    const auto& low = parameter.minimum;
    const auto& high = parameter.maximum;
    switch (parameter.type) {
    case PPD_CUSTOM_INT:
        return numberProblem(optionText, value, low.custom_int, high.custom_int, true);
    case PPD_CUSTOM_REAL:
        return numberProblem(optionText, value, double(low.custom_real), double(high.custom_real), false);
    case PPD_CUSTOM_POINTS:
        return numberProblem(optionText, value, double(low.custom_points), double(high.custom_points), false);
    case PPD_CUSTOM_CURVE:
        return numberProblem(optionText, value, double(low.custom_curve), double(high.custom_curve), false);
    case PPD_CUSTOM_INVCURVE:
        return numberProblem(optionText, value, double(low.custom_invcurve), double(high.custom_invcurve),
                             false);
    case PPD_CUSTOM_STRING:
        return lengthProblem(optionText, value, low.custom_string, high.custom_string);
    case PPD_CUSTOM_PASSCODE:
    case PPD_CUSTOM_PASSWORD:
        return lengthProblem(optionText, value, low.custom_password, high.custom_password);
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
