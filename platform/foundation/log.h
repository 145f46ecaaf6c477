// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QLoggingCategory>
#include <QString>

namespace HALVERN_EXPORT halvern {

Q_DECLARE_LOGGING_CATEGORY(pdeLog)

/// Writes one line into the system log (category "halvern.pde"). The text goes out as it stands. Any thread.
void logLine(const QString& text);

/// The full name of an instance operation in log lines: "-[ClassName operation:]".
QString operationName(const char* className, const char* operation);

} // namespace halvern
