// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace halvern {

/// How much a state reason matters to somebody who wants to print.
enum class Severity { report, warning, error };

/// What the reason's ending says; without one, what the reason means.
Severity severityOf(const QString& reason);

/// A printer's state reason ("media-empty-error") in the user's words; empty for one that says nothing.
QString reasonText(const QString& reason);

} // namespace halvern
