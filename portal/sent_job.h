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
    /// `run` sends what `document` holds.
    SentJob(PortalRoom room, const QString& application, std::unique_ptr<PrintRun> run,
            SpooledDocument document);

    void start() { run_->start(); }

    /// Whether there is something that whoever ends the program waits for.
    bool isOnItsWay() const { return hasGivenUp_ ? !run_->isOver() : run_->jobId() == 0; }

    /// Takes back what the server does not have whole, and tells the user.
    void giveUp();

    /// The sentence for a document that was accepted and did not get to the server in time.
    static QString givenUpSentence();

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
    std::unique_ptr<PrintRun> run_;
    QSet<QString> told_;
    bool hasGivenUp_ = false;
};

} // namespace halvern
