// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QDateTime>
#include <QString>

#include <optional>

namespace HALVERN_EXPORT halvern {

/// The moment of a printer's time stamp: a decimal number of seconds since the start of 2001, UTC; a text
/// that does not start with a number counts as zero. Any thread.
QDateTime dateOfTimeStamp(const QString& stamp);

/// How the status line names a date: the day if it is more than a day before `now`, else the time of day.
/// Nothing for no date, or if it cannot be formatted. Any thread.
std::optional<QString> refreshDateText(const std::optional<QDateTime>& date, const QDateTime& now);

/// Whether the printer's data are more than 120 seconds old; no date is always stale. Any thread.
bool isRefreshStale(const std::optional<QDateTime>& date, const QDateTime& now);

} // namespace halvern
