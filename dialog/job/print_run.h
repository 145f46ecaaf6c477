// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/job/job_follower.h"
#include "dialog/job/job_submitter.h"
#include "dialog/page/page_renderer.h"

#include <QObject>

namespace halvern {

/// How a print run ended.
struct PrintOutcome {
    bool printed = false;
    int jobId = 0;                      ///< 0: no job was made
    JobStage stage = JobStage::unknown; ///< with a job: the server has gone silent
    QString sentence;                   ///< for the user
};

/// One press on Print: renders the pages, sends the job and follows it to its end. The work is done by
/// workers; this object lives on the main thread, and deleting it makes the workers stop by themselves.
class PrintRun : public QObject {
    Q_OBJECT

public:
    PrintRun(JobRequest job, std::vector<PageToPrint> pages, int resolution, QObject* parent);
    ~PrintRun() override;

    /// How long a server that goes silent after the job was sent is borne with; without it, for ever. Before
    /// start().
    void setPatience(Patience patience) { patience_ = patience; }

    void start();

    /// Stops rendering or sending, or asks the server to cancel the job.
    void cancel();

    /// Gets the resting job on its way again.
    void apply(Remedy remedy);

    /// 0 as long as the server does not have the whole job.
    int jobId() const { return follower_ ? follower_->jobId() : 0; }

    bool isOver() const { return isOver_; }

    bool isCancelled() const { return cancelled_->load(); }

Q_SIGNALS:
    /// The share of preparing and sending that is done, 0 to 1, with the words for it.
    void progressed(double share, const QString& words);
    /// cancel() was called.
    void cancelling();
    /// The server has the whole job.
    void submitted(int jobId);
    /// The job's status has changed, also while it rests, or something asked of the server failed: a
    /// sentence.
    void followed(const halvern::JobStatus& status, const QString& sentence);
    /// What the server holds of the job was compared with what was sent, with a sentence about it; at most
    /// once, and not if the server has gone silent.
    void readBack(const halvern::JobReadBack& job, const QString& sentence);
    /// The end; emitted once.
    void finished(const halvern::PrintOutcome& outcome);

private:
    void takeSubmission(const SubmitResult& result);
    void takeStatus(const JobStatus& status);
    void takeEnd(const JobStatus& status);
    void finish(PrintOutcome outcome);

    JobRequest job_;
    std::vector<PageToPrint> pages_;
    int resolution_;
    Patience patience_;
    cups::CancelFlag cancelled_;
    JobFollower* follower_ = nullptr;
    bool isOver_ = false;
};

} // namespace halvern
