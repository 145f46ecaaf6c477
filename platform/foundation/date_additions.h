// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QDateTime>
#include <QString>

#include <optional>

namespace HALVERN_EXPORT halvern {
namespace KSTRVL_NSDateAdditions {

/// stringWithUTSFormat: the date by a Unicode date pattern (UTS #35, such as "yyyy/MM/dd" or "h:mm a"), in
/// the user's locale and time zone. Nothing if the pattern is refused or the date is invalid. Any thread.
std::optional<QString> stringWithUTSFormat(const QDateTime& date, const QString& pattern);

} // namespace KSTRVL_NSDateAdditions
} // namespace halvern
