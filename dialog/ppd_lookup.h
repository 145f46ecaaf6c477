#pragma once

#include <QString>

struct ppd_choice_s;
struct ppd_cparam_s;
struct ppd_file_s;
struct ppd_option_s;
using ppd_file_t = ppd_file_s;

/// Look-ups in a PPD that the dialog's model shares. Keywords are QStrings, null answers mean "not there".
namespace halvern::ppd_lookup {

ppd_option_s* option(ppd_file_t* file, const QString& key);

/// A listed choice; never the entry that stands for custom values.
ppd_choice_s* listedChoice(ppd_file_t* file, const QString& key, const QString& choice);

/// The only parameter of an option's custom values; null if it has none or several.
ppd_cparam_s* customParameter(ppd_file_t* file, const QString& key);

/// Why `value` cannot be the parameter's value, as a sentence with the option's text in it; empty if it can.
QString customValueProblem(const ppd_cparam_s& parameter, const QString& optionText, const QString& value);

/// Takes away all marks of the option.
void unmark(ppd_file_t* file, const QString& key);

} // namespace halvern::ppd_lookup
