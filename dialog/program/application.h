#pragma once

#include <QApplication>
#include <QTranslator>

#include <memory>

namespace halvern {

class PrintRun;

/// Before the application object is made: where the log goes, and that no display is needed yet.
void prepareProcess();

/// From now on panels' trace lines go to the system log, even on a terminal. Main thread only, before there
/// are panels.
void sendTraceToSystemLog();

/// The sentence for a dialog that has no display to be shown on; empty if there is one.
QString displayProblem();

/// After it is made: its name and the translations for the user's language, which the caller keeps.
QList<std::shared_ptr<QTranslator>> prepareApplication();

/// Gives a cancelled run's worker a moment to take a half-sent job back, after the window has gone.
void waitForUnfinishedRun(PrintRun* run);

/// The end of a program whose windows are closed: waits, seconds at most, until the panels' background work
/// has taken its command jobs back, and delivers what the panels left for the main thread. Main thread only.
void finishQueuedWork();

} // namespace halvern
