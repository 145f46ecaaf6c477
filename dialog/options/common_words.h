// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/option_value.h"

#include <QMap>

#include <optional>

struct ppd_file_s;
using ppd_file_t = ppd_file_s;

namespace halvern {

/// What printers have in common under names of their own, in the words of IPP: the values of
/// "print-color-mode", "print-quality" ("draft", "normal" and "high"), "media-type" and "media-source". All
/// of this on the thread that owns `file`.

/// The printer's option for a word; nothing if it has none. A value of the printer's own is a word, too. What
/// is chosen `now` stays if it is one of several that the word stands for.
std::optional<OptionValue> choiceForWord(ppd_file_t* file, const OptionValue& word,
                                         const QMap<QString, QString>& now);

/// The word for what is chosen; of papers and trays the printer's own where there is no other. Empty if the
/// printer has no such option, or if nobody knows what its choice does.
QString wordForChoice(ppd_file_t* file, const QString& attribute, const QMap<QString, QString>& now);

/// The keyword of the printer's option, whatever its choices are; empty if it has none.
QString optionForWords(ppd_file_t* file, const QString& attribute);

} // namespace halvern
