// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QString>

namespace halvern {

/// When a printer was last there, kept with the preferences: somebody who misses it is told. Main thread
/// only.
class SeenPrinters {
public:
    /// It is there today.
    static void note(const QString& name);

    /// Invalid if it never was, or nobody remembers.
    static QDate last(const QString& name);
};

} // namespace halvern
