#include "dialog/job/print_run.h"

#include "platform/foundation/threads/work_queue.h"

#include <QPointer>
#include <QTemporaryFile>

namespace halvern {

namespace {

// Rendering and sending take about as long.
constexpr double kRenderingShare = 0.5;

using Report = std::function<void(double, bool)>;

SubmitResult renderAndSend(JobRequest job, const std::vector<PageToPrint>& pages, int resolution,
                           const cups::CancelFlag& cancelled, const Report& report)
{
    SubmitResult result;
    QTemporaryFile file;
    if (!file.open()) {
        result.problem =
            PrintRun::tr("No temporary file can be made: %1. Make room on the disk and try again.")
                .arg(file.errorString());
        return result;
    }
    result.problem = writePdf(file, pages, resolution, [&](double share) {
        report(share * kRenderingShare, false);
        return !cancelled->load();
    });
    result.wasCancelled = cancelled->load();
    if (!result.problem.isEmpty() || result.wasCancelled)
        return result;
    if (!file.flush()) {
        result.problem =
            PrintRun::tr("No temporary file can be made: %1. Make room on the disk and try again.")
                .arg(file.errorString());
        return result;
    }
    job.documentPath = file.fileName();
    return submitJob(job, cancelled,
                     [&](double share) { report(kRenderingShare + share * (1.0 - kRenderingShare), true); });
}

} // namespace

PrintRun::PrintRun(JobRequest job, std::vector<PageToPrint> pages, int resolution, QObject* parent)
    : QObject(parent),
      job_(std::move(job)),
      pages_(std::move(pages)),
      resolution_(resolution),
      cancelled_(cups::makeCancelFlag())
{
}

PrintRun::~PrintRun()
{
    cancelled_->store(true);
}

void PrintRun::start()
{
    QPointer<PrintRun> self(this);
    const Report report = [self](double share, bool isSending) {
        mainQueue().async([self, share, isSending] {
            if (self && !self->isOver_)
                Q_EMIT self->progressed(share,
                                        isSending ? tr("Sending the job...") : tr("Preparing the pages..."));
        });
    };
    WorkQueue().async([self, report, job = job_, pages = std::move(pages_), resolution = resolution_,
                       cancelled = cancelled_] {
        const SubmitResult result = renderAndSend(job, pages, resolution, cancelled, report);
        mainQueue().async([self, result] {
            if (self)
                self->takeSubmission(result);
        });
    });
}

void PrintRun::takeSubmission(const SubmitResult& result)
{
    if (result.wasCancelled) {
        finish({false, 0, JobStage::cancelled, tr("Cancelled: nothing was printed.")});
        return;
    }
    if (result.jobId == 0) {
        finish({false, 0, JobStage::unknown, tr("Nothing was printed. %1").arg(result.problem)});
        return;
    }
    follower_ = new JobFollower(job_.queue, result.jobId, this);
    connect(follower_, &JobFollower::changed, this, &PrintRun::takeStatus);
    connect(follower_, &JobFollower::ended, this, [this](const JobStatus& status) {
        finish({status.stage == JobStage::completed, follower_->jobId(), status.stage,
                jobSentence(status, job_.queue, follower_->jobId())});
    });
    connect(follower_, &JobFollower::cancelFailed, this,
            [this](const QString& problem) { Q_EMIT followed(follower_->status(), problem); });
    Q_EMIT submitted(result.jobId);
    if (cancelled_->load())
        follower_->cancel();
}

void PrintRun::takeStatus(const JobStatus& status)
{
    const QString sentence =
        status.problem.isEmpty() ? jobSentence(status, job_.queue, follower_->jobId()) : status.problem;
    Q_EMIT followed(status, sentence);
}

void PrintRun::cancel()
{
    cancelled_->store(true);
    if (follower_)
        follower_->cancel();
}

void PrintRun::finish(PrintOutcome outcome)
{
    if (isOver_)
        return;
    isOver_ = true;
    Q_EMIT finished(outcome);
}

} // namespace halvern
