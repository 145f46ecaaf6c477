// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace halvern {

/// Rows of the same length as lines of aligned columns for a terminal, each ended by a line feed. The texts
/// are clean already (terminalText()). Any thread.
QString alignedColumns(const QList<QStringList>& rows);

} // namespace halvern
