#pragma once

#include <QObject>

#include <functional>

namespace halvern {

/// From now on SIGINT, SIGTERM and SIGHUP do not end the process but are remembered, the first time; a second
/// one ends it at once. Main thread only.
void watchQuitSignals();

/// Whether one has come. Any thread.
bool quitWasSignalled();

/// Watches them and calls `leave` from the event loop when one has come, as long as `context` lives. Main
/// thread only.
void onQuitSignal(QObject* context, std::function<void()> leave);

} // namespace halvern
