// SPDX-License-Identifier: MIT
#pragma once

#include <QSizeF>

#include <optional>

namespace halvern {

class DialogSession;

/// The shortest paper that takes all photos side by side, in points; nothing where the printer cannot cut it
/// so, or where it is so already. Main thread only.
std::optional<QSizeF> usedPaper(DialogSession& session);

} // namespace halvern
