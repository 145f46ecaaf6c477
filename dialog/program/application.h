// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QTranslator>

#include <memory>

namespace halvern {

class PdfOutput;
class PrintRun;

/// Before the application object is made: where the log goes, and what it is shown on. Without a window
/// nothing is asked of the display; with one, a display that does not work ends the program with a sentence
/// until prepareApplication().
void prepareProcess(bool showsWindow = true);

/// From now on panels' trace lines go to the system log, even on a terminal. Main thread only, before there
/// are panels.
void sendTraceToSystemLog();

/// The sentence for a dialog that has no display to be shown on; empty if there is one.
QString displayProblem();

/// After it is made: its name and the translations for the user's language, which the caller keeps.
QList<std::shared_ptr<QTranslator>> prepareApplication();

/// After the window has gone: waits until the server has the whole job, or, of a cancelled run, a moment
/// until what was sent of it has been taken back. Whether it waited.
bool waitForUnfinishedRun(PrintRun* run);

/// The same for a file that was being written when the window was closed. The sentence about what failed;
/// empty if it is there, or if there was none.
QString waitForUnfinishedFile(PdfOutput* file);

/// Tells somebody whose window is closed what became of the job: in a notification of the desktop, or on
/// standard error if there is none.
void tellAfterwards(const QString& sentence);

/// The end of a program whose windows are closed: waits, seconds at most, until the panels' background work
/// has taken its command jobs back, and delivers what the panels left for the main thread. Main thread only.
void finishQueuedWork();

} // namespace halvern
