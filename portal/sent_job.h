// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/job/print_run.h"
#include "portal/document_spool.h"
#include "portal/portal_call.h"

#include <QSet>

namespace halvern {

/// A document on its way to the printer without a window, followed to its end. What goes wrong is told in a
/// notice. Main thread only.
class SentJob : public QObject {
    Q_OBJECT

public:
    SentJob(PortalRoom room, const QString& application, JobRequest job, SpooledDocument document);

    void start() { run_.start(); }

Q_SIGNALS:
    /// The server has the whole job.
    void submitted();
    /// It has none, and the user was told.
    void failed();
    /// The job has ended.
    void over();

private:
    void takeStatus(const JobStatus& status, const QString& sentence);
    void takeOutcome(const PrintOutcome& outcome);

    PortalRoom room_;
    QString application_;
    SpooledDocument document_;
    std::shared_ptr<void> keepsAlive_;
    PrintRun run_;
    QSet<QString> told_;
};

} // namespace halvern
