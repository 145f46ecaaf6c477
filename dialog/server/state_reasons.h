#pragma once

#include <QString>

namespace halvern {

/// A printer's state reason ("media-empty-error") in the user's words; empty for one that says nothing.
QString reasonText(const QString& reason);

} // namespace halvern
