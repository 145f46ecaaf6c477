// SPDX-License-Identifier: MIT
#pragma once

#include "platform/printing/cups_connection.h"

#include <QObject>

#include <functional>

namespace halvern {

/// From now on the first SIGINT, SIGTERM or SIGHUP does not end the process but is remembered; a second one
/// of any of them ends it at once. Main thread only.
void watchQuitSignals();

/// Whether one has come. Any thread.
bool quitWasSignalled();

/// The flag that is raised when one comes, so that conversations with the server end. Any thread.
cups::CancelFlag quitFlag();

/// Watches them and calls `leave` from the event loop when one has come, as long as `context` lives. Main
/// thread only.
void onQuitSignal(QObject* context, std::function<void()> leave);

} // namespace halvern
