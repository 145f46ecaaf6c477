// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QMap>
#include <QString>

/// What the maker's options say to somebody who reads a summary. Any thread.
namespace HALVERN_EXPORT halvern {
namespace maker {

/// Whether the option's value has no meaning for a job with these values (a sheet's name while the roll
/// feeds) or for any reader (a panel's own memory).
bool saysNothing(const QString& key, const QMap<QString, QString>& values);

} // namespace maker
} // namespace halvern
