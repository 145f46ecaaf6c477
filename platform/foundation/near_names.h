// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QStringList>

namespace HALVERN_EXPORT halvern {

/// The names that somebody who wrote `wanted` may have meant, the likeliest first: the same but for its case,
/// one that begins with it or holds it, one that is a slip of the finger away. Any thread.
QStringList nearNames(const QString& wanted, const QStringList& names, qsizetype most = 3);

} // namespace halvern
