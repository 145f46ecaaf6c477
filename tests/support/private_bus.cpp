// SPDX-License-Identifier: MIT
#include "tests/support/private_bus.h"
#include "tests/support/text.h"

#include "tests/support/observers.h"

#include <QFile>

namespace halvern {

PrivateBus::PrivateBus(const char* variable)
    : variable_(variable), addressBefore_(qgetenv(variable)), hadAddress_(qEnvironmentVariableIsSet(variable))
{
    const QString address = q("unix:path=%1/bus").arg(folder_.path());
    QFile config(folder_.filePath(q("bus.conf")));
    const QString text = q("<busconfig><type>system</type><listen>%1</listen>"
                           "<auth>EXTERNAL</auth><policy context=\"default\">"
                           "<allow send_destination=\"*\" eavesdrop=\"true\"/>"
                           "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>")
                             .arg(address);
    if (!config.open(QIODevice::WriteOnly) || config.write(text.toUtf8()) < 0)
        qFatal("the private bus's configuration could not be written");
    config.close();
    qputenv(variable_, address.toUtf8());
    start();
}

PrivateBus::~PrivateBus()
{
    kill();
    if (hadAddress_)
        qputenv(variable_, addressBefore_);
    else
        qunsetenv(variable_);
}

void PrivateBus::start()
{
    QFile::remove(folder_.filePath(q("bus")));
    daemon_.start(q("dbus-daemon"), {q("--nofork"), q("--nopidfile"), q("--print-address"),
                                     q("--config-file=") + folder_.filePath(q("bus.conf"))});
    // It prints its address once it listens.
    if (!waitUntil([this] { return !daemon_.standardOutput().isEmpty(); }))
        qFatal("dbus-daemon does not start: %s", daemon_.standardError().constData());
}

void PrivateBus::kill()
{
    daemon_.kill();
}

} // namespace halvern
