// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QStringList>

namespace HALVERN_EXPORT halvern {

/// The texts one after the other, with the comma of the user's language between them. Any thread.
QString listText(const QStringList& texts);

} // namespace halvern
