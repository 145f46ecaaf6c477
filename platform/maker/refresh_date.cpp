// SPDX-License-Identifier: MIT
#include "platform/maker/refresh_date.h"

#include "platform/foundation/date_additions.h"
#include "platform/foundation/numbers.h"

#include <algorithm>

namespace halvern {

namespace {

constexpr qint64 kStaleAfterMs = 120 * 1000;
constexpr qint64 kDayMs = 86400 * qint64(1000);

// No calendar goes further, and no printer.
constexpr double kFarthestSeconds = 1e11;

QDateTime referenceDate()
{
    return QDateTime(QDate(2001, 1, 1), QTime(0, 0), Qt::UTC);
}

} // namespace

QDateTime dateOfTimeStamp(const QString& stamp)
{
    const double seconds = std::clamp(leadingDouble(stamp), -kFarthestSeconds, kFarthestSeconds);
    return referenceDate().addMSecs(qint64(seconds * 1000.0));
}

std::optional<QString> refreshDateText(const std::optional<QDateTime>& date, const QDateTime& now)
{
    if (!date)
        return std::nullopt;
    const bool daysAgo = now.msecsTo(*date) + kDayMs < 0;
    return KSTRVL_NSDateAdditions::stringWithUTSFormat(*date, daysAgo ? QStringLiteral("yyyy/MM/dd")
                                                                      : QStringLiteral("h:mm a"));
}

bool isRefreshStale(const std::optional<QDateTime>& date, const QDateTime& now)
{
    return date.value_or(referenceDate()).msecsTo(now) > kStaleAfterMs;
}

} // namespace halvern
