// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QString>
#include <QStringView>

namespace HALVERN_EXPORT halvern {

/// The number at the start of a text, after white space: an optional sign, digits, a point, an exponent. 0 if
/// the text does not start with a number. The decimal sign is "." in every locale.
double leadingDouble(QStringView text);

/// The integer at the start of a text, after white space; 0 if there is none; held to the range of int.
int leadingInteger(QStringView text);

/// The number filled into a printf format that takes one double ("%.2f"), with "." in every locale.
QString formatDouble(const char* format, double number);

/// The shortest decimal text that reads back as the number.
QString shortestDouble(double number);

/// A number cut to an int, toward zero, held to the range of int; not-a-number gives 0.
int truncatedToInt(double number);

/// The text with its decimal numbers, as in "152.4 mm", written as the user's country does; what looks like a
/// version or an address stays. Any thread.
QString inUsersNumbers(const QString& text);

} // namespace halvern
