// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QString>

#include <functional>

/// What the maker's options say to somebody who reads a summary. Any thread.
namespace HALVERN_EXPORT halvern {
namespace maker {

/// A job's value of an option.
using Values = std::function<QString(const QString& key)>;

/// Whether the option's value has no meaning for a job with these values (a sheet's name while the roll
/// feeds) or for any reader (a panel's own memory).
bool saysNothing(const QString& key, const Values& values);

/// What a job with these values takes its paper from.
enum class Feed { unknown, sheet, roll };
Feed feedOf(const Values& values);

/// Whether a job with these values has text on the back of its pictures.
bool printsOnBack(const Values& values);

/// A surface's words without the number that the printer gives it: "Gloss" of "1 - Gloss".
QString surfaceWords(const QString& text);

} // namespace maker
} // namespace halvern
