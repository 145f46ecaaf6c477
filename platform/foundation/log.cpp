// SPDX-License-Identifier: MIT
#include "platform/foundation/log.h"

namespace halvern {

Q_LOGGING_CATEGORY(pdeLog, "halvern.pde", QtInfoMsg)

void logLine(const QString& text)
{
    qCInfo(pdeLog).noquote().nospace() << text;
}

QString operationName(const char* className, const char* operation)
{
    return QStringLiteral("-[%1 %2]").arg(QLatin1StringView(className), QLatin1StringView(operation));
}

} // namespace halvern
