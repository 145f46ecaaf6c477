// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/child_process.h"

#include <QTemporaryDir>

namespace halvern {

/// A D-Bus daemon of the test's own in the place of the system bus, or of the session's, while it exists.
class PrivateBus {
public:
    /// `variable` names the bus.
    explicit PrivateBus(const char* variable = "DBUS_SYSTEM_BUS_ADDRESS");
    ~PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    void start();

    /// Ends the daemon, as a crash would. The address stays.
    void kill();

private:
    const char* variable_;
    QTemporaryDir folder_;
    QByteArray addressBefore_;
    bool hadAddress_ = false;
    ChildProcess daemon_;
};

} // namespace halvern
