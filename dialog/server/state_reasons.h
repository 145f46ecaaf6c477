// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace halvern {

/// How much a state reason matters to somebody who wants to print. All of this on any thread.
enum class Severity { report, warning, error };

/// What the reason's ending says; without one, what the reason means.
Severity severityOf(const QString& reason);

/// A printer's state reason ("media-empty-error") in the user's words; empty for one that says nothing.
QString reasonText(const QString& reason);

/// What to do about it, a sentence; empty if nothing, or if nobody knows.
QString reasonAdvice(const QString& reason);

/// A state message as a part of a sentence, shortened; empty for what filters say of their work rather than
/// of what is wrong, and for the server's own words for a paused queue.
QString messageText(const QString& message);

} // namespace halvern
