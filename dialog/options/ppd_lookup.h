// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

struct ppd_choice_s;
struct ppd_cparam_s;
struct ppd_file_s;
struct ppd_option_s;
using ppd_file_t = ppd_file_s;

/// Look-ups in a PPD that the dialog's model shares. Keywords are QStrings, null answers mean "not there";
/// what they point to belongs to the file. On the thread that owns the file.
namespace halvern::ppd_lookup {

ppd_option_s* option(ppd_file_t* file, const QString& key);

/// A listed choice; never the entry that stands for custom values.
ppd_choice_s* listedChoice(ppd_file_t* file, const QString& key, const QString& choice);

/// The only parameter of an option's custom values; null if it has none or several.
ppd_cparam_s* customParameter(ppd_file_t* file, const QString& key);

/// Whether a part of the option's custom values is a PIN or a password.
bool hasSecret(ppd_file_t* file, const QString& key);

/// How a text stands for a number: it is one; or it begins with one, as what the user is still typing does
/// ("-", "12.") and what a panel lets pass on purpose ("abc" counts as 0).
enum class NumberReading { whole, leading };

/// Why `value` cannot be the custom value of the option whose parameter this is, as a sentence with
/// `optionText` in it; empty if it can.
QString customValueProblem(ppd_file_t* file, const ppd_cparam_s& parameter, const QString& key,
                           const QString& optionText, const QString& value, NumberReading reading);

/// Takes away all marks of the option.
void unmark(ppd_file_t* file, const QString& key);

} // namespace halvern::ppd_lookup
