#include "platform/printing/command_job.h"

namespace halvern {

QString commandFile(const QStringList& commands)
{
    return QStringLiteral("#CUPS-COMMAND\n%1\n").arg(commands.join(QLatin1Char('\n')));
}

} // namespace halvern
