// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/job/pdf_output.h"
#include "dialog/program/command_line.h"
#include "dialog/session/dialog_session.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QTextStream>

namespace halvern {

/// Prints without a window, with the same session as the dialog: waits for the printer and the photos, sends
/// the job, waits for its end and says what became of it. Main thread only; the event loop must run.
class BatchPrint : public QObject {
    Q_OBJECT

public:
    BatchPrint(const CommandLine& line, PanelSource& panels, QTextStream& out, QTextStream& err);

    void start();

    /// Ends as soon as possible: takes back what is not yet sent whole, and leaves alone what the server has.
    void leave();

Q_SIGNALS:
    void finished(int exitStatus);

private:
    void takePrinters();
    void takePrinterFailure(const QString& sentence);
    void takeDamage(const QString& sentence);
    void proceed();
    void warnOfMisfit();
    void tellOptions();
    void writeFile();
    void print();
    void takeStatus(const JobStatus& status, const QString& sentence);
    void takeOutcome(const PrintOutcome& outcome);
    void tellReadBack();
    void fail(const QString& sentence, int status = kExitFailed);
    void end(int status);

    CommandLine line_;
    QTextStream& out_;
    QTextStream& err_;
    DialogSession session_;
    bool hasFailed_ = false;
    bool hasStarted_ = false;
    QString printerFailure_;
    QStringList photoProblems_;
    QPointer<PrintRun> run_;
    QPointer<PdfOutput> file_;
    QString lastSentence_;
    QElapsedTimer lastProgress_;
    JobReadBack readBack_;
};

} // namespace halvern
