// SPDX-License-Identifier: MIT
#include "tests/support/private_bus.h"
#include "tests/support/text.h"

#include "tests/support/observers.h"

#include <QFile>

namespace halvern {

static const char kBusVariable[] = "DBUS_SYSTEM_BUS_ADDRESS";

PrivateBus::PrivateBus()
    : addressBefore_(qgetenv(kBusVariable)), hadAddress_(qEnvironmentVariableIsSet(kBusVariable))
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
    qputenv(kBusVariable, address.toUtf8());
    start();
}

PrivateBus::~PrivateBus()
{
    kill();
    if (hadAddress_)
        qputenv(kBusVariable, addressBefore_);
    else
        qunsetenv(kBusVariable);
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
