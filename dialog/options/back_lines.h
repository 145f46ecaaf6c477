// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/option_value.h"

#include <QStringList>

namespace halvern {

/// How many lines of text the back of a picture takes.
inline constexpr int kBackLines = 2;

/// A line for the back of the pictures, as somebody gave it to the program.
struct BackLine {
    QString stored;      ///< as the Backprint page would store it, had it been typed there
    QStringList remarks; ///< sentences about what a line cannot hold and has lost
};

/// Holds a text to the rules of the Backprint page. `number` is 1 for the first line. Any thread.
BackLine readBackLine(int number, const QString& text);

/// The options that print the stored lines, each switched on.
OptionValues backLineOptions(const QStringList& storedLines);

/// The option that holds a line's text.
QString backLineText(int number);

/// The option that switches a line on; 1 is the first line. A printer without it prints no such line.
QString backLineSwitch(int number);

} // namespace halvern
