#pragma once

#include "dialog/job/job_follower.h"
#include "dialog/job/job_submitter.h"
#include "dialog/page/page_renderer.h"

#include <QObject>

namespace halvern {

/// How a print run ended.
struct PrintOutcome {
    bool printed = false;
    int jobId = 0; ///< 0: no job was made
    JobStage stage = JobStage::unknown;
    QString sentence; ///< for the user
};

/// One press on Print: renders the pages, sends the job and follows it to its end. The work is done by
/// workers; this object lives on the main thread, and deleting it makes the workers stop by themselves.
class PrintRun : public QObject {
    Q_OBJECT

public:
    PrintRun(JobRequest job, std::vector<PageToPrint> pages, int resolution, QObject* parent);
    ~PrintRun() override;

    void start();

    /// Stops rendering or sending, or asks the server to cancel the job.
    void cancel();

    int jobId() const { return follower_ ? follower_->jobId() : 0; }

    bool isOver() const { return isOver_; }

    bool isCancelled() const { return cancelled_->load(); }

Q_SIGNALS:
    /// The share of preparing and sending that is done, 0 to 1, with the words for it.
    void progressed(double share, const QString& words);
    /// The job has a number.
    void submitted(int jobId);
    /// The job's stage, also while it rests: a sentence.
    void followed(const halvern::JobStatus& status, const QString& sentence);
    /// The end; emitted once.
    void finished(const halvern::PrintOutcome& outcome);

private:
    void takeSubmission(const SubmitResult& result);
    void takeStatus(const JobStatus& status);
    void finish(PrintOutcome outcome);

    JobRequest job_;
    std::vector<PageToPrint> pages_;
    int resolution_;
    cups::CancelFlag cancelled_;
    JobFollower* follower_ = nullptr;
    bool isOver_ = false;
};

} // namespace halvern
