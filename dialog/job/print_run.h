// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/job/job_follower.h"
#include "dialog/job/job_submitter.h"
#include "dialog/job/run_progress.h"
#include "dialog/page/page_renderer.h"

#include <QObject>

namespace halvern {

/// How a print run ended.
struct PrintOutcome {
    bool printed = false;
    int jobId = 0;                      ///< 0: no job was made
    JobStage stage = JobStage::unknown; ///< with a job: the server has gone silent
    QString sentence;                   ///< for the user
    bool isLeft = false;                ///< nothing failed: jobs that the server has whole were left on it

    /// Whether there is a job of which nobody knows whether it was printed.
    bool isEndUnknown() const
    {
        return jobId > 0 && !printed && (stage == JobStage::unknown || stage == JobStage::gone);
    }
};

/// The jobs that the server has whole, and why there are no more.
struct SentJobs {
    QList<int> ids;
    int photos = 0;
    bool isAll = false;
    bool wasCancelled = false;
    QString problem;
};

/// One press on Print: sends the pages while they are made, as one job or as several, or a document that is
/// there, and follows it to its end. The work is done by workers; this object lives on the main thread, and
/// deleting it makes the workers stop by themselves.
class PrintRun : public QObject {
    Q_OBJECT

public:
    PrintRun(JobRequest job, std::vector<SheetToPrint> sheets, PdfQuality quality, QObject* parent);
    /// Sends a file as it is.
    PrintRun(JobRequest job, const QString& document, QObject* parent);
    ~PrintRun() override;

    /// How long a server that goes silent after the job was sent is borne with; without it, for ever. Before
    /// start().
    void setPatience(Patience patience) { patience_ = patience; }

    /// At most so many in each job, 0 for all in one. Before start().
    void setPhotosPerJob(int count) { photosPerJob_ = size_t(count); }

    void start();

    /// Holds up the sending before the next photo, or goes on with it. The connection to the server stays.
    void setPaused(bool paused);

    /// What is sent, but for the document.
    const JobRequest& job() const { return job_; }

    int photoCount() const { return progress_.photos(); }

    bool isPaused() const { return progress_.isPaused(); }

    /// Stops sending, and asks the server to cancel the jobs.
    void cancel();

    /// Stops sending. What the server has whole is left on it, and nobody follows that any more.
    void stop();

    /// The jobs that the server has whole by now.
    const QList<int>& wholeJobs() const { return sent_.ids; }

    /// Gets the resting job on its way again.
    void apply(Remedy remedy);

    /// 0 as long as the server does not have all that is sent; of several jobs the one that is followed.
    int jobId() const { return follower_ ? follower_->jobId() : 0; }

    bool isOver() const { return isOver_; }

    bool isCancelled() const { return cancelled_->load(); }

Q_SIGNALS:
    /// The share of the photos that is sent, 0 to 1, with the words for it.
    void progressed(double share, const QString& words);
    /// cancel() or stop() was called.
    void cancelling();
    /// The server has all of it; of several jobs the first.
    void submitted(int jobId);
    /// The job's status has changed, also while it rests, or something asked of the server failed: a
    /// sentence.
    void followed(const halvern::JobStatus& status, const QString& sentence);
    /// What the server holds of a job was compared with what was sent, with a sentence about it; at most once
    /// for each, and not if the server has gone silent.
    void readBack(const halvern::JobReadBack& job, const QString& sentence);
    /// The end; emitted once.
    void finished(const halvern::PrintOutcome& outcome);

private:
    void takeProgress(double share);
    void takeSubmission(const SentJobs& sent);
    void followNext();
    void takeJobEnd(const PrintOutcome& outcome);
    void takeStatus(const JobStatus& status);
    void takeEnd(const JobStatus& status);
    PrintOutcome outcomeOfAll() const;
    void cancelLeft();
    void finishLeft();
    void finish(PrintOutcome outcome);

    JobRequest job_;
    std::vector<SheetToPrint> sheets_;
    PdfQuality quality_;
    QString document_; // empty: the pages are made
    size_t photosPerJob_ = 0;
    Patience patience_;
    cups::CancelFlag cancelled_;
    cups::CancelFlag paused_;
    RunProgress progress_;
    double share_ = 0.0;
    SentJobs sent_;
    qsizetype followed_ = 0; ///< of the jobs, with the one that is followed now
    PrintOutcome outcome_;   ///< of several jobs the first that was not printed
    int printedJobs_ = 0;
    int sheetsOfCancelled_ = 0;
    bool isStopped_ = false;
    JobFollower* follower_ = nullptr;
    bool isOver_ = false;
};

} // namespace halvern
