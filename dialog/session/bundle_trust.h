// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace halvern {

/// Why code from this bundle must not be loaded: somebody else than root and the user may have put or changed
/// something in it, or in the folder that it lies in. Empty if nobody else may. A link counts as what it
/// leads to. Reads from the disk; any thread.
QString bundleProblem(const QString& path);

} // namespace halvern
