// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QStringList>

namespace HALVERN_EXPORT halvern {

/// A table as part of markup that we build (see plain_text.h): its rows, each of cells from "<td" to "</td>".
/// The toolkit turns no table round; in a window that is written from right to left these do. Main thread
/// only.
QString rowMarkup(QStringList cells);
QString tableMarkup(const QString& rows);

} // namespace halvern
