// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <chrono>
#include <string>

/// How the printing system's notifications travel: as signals on the D-Bus system bus (the one that
/// DBUS_SYSTEM_BUS_ADDRESS names, if it is set). docs/printer-notifications.md describes the interface. This
/// header needs no Qt, so that printer back ends can use it too.
namespace HALVERN_EXPORT halvern {
namespace notification_bus {

inline constexpr char kPath[] = "/com/halvern/vlx/Notifications";
inline constexpr char kInterface[] = "com.halvern.vlx.Notifications";
inline constexpr char kMember[] = "Posted";

/// The printer's state or abilities have changed.
inline constexpr char kPrinterInfoDidUpdate[] = "VLXPrinterInfoDidUpdateNotification";
/// The papers that the printer knows have changed.
inline constexpr char kPrinterPaperDidUpdate[] = "VLXPrinterPaperDidUpdateNotification";

/// How long a bus may take that accepts a connection and then says nothing.
inline constexpr std::chrono::milliseconds kPatience{5000};

/// Posts one notification and waits until the bus has it, `patience` at most. `object` is the printer's
/// device URI, as the queue has it. Both are UTF-8. False, with the reason in `why` if given, when there is
/// no bus, it does not answer, or it refuses. Any thread, but not one that a user waits for.
bool post(const std::string& name, const std::string& object, std::string* why = nullptr,
          std::chrono::milliseconds patience = kPatience);

} // namespace notification_bus
} // namespace halvern
