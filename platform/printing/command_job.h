#pragma once

#include <QStringList>

namespace halvern {

/// The document of a command job: its header line, then the commands, each line ended by one line feed.
QString commandFile(const QStringList& commands);

} // namespace halvern
