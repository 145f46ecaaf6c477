// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace halvern {

/// What the user calls the application with this identifier: the name in its desktop entry, in the user's
/// language; empty if nobody knows. Any thread.
QString applicationName(const QString& identifier);

} // namespace halvern
