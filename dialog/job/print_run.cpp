// SPDX-License-Identifier: MIT
#include "dialog/job/print_run.h"

#include "platform/foundation/threads/work_queue.h"

#include <QPointer>
#include <QTemporaryFile>

namespace halvern {

namespace {

// Rendering and sending take about as long.
constexpr double kRenderingShare = 0.5;

using Report = std::function<void(double, bool)>;

// Without a name: whatever ends the program, nothing of the pages is left behind.
bool openNameless(QTemporaryFile& file)
{
    if (!file.open())
        return false;
    file.setAutoRemove(false);
    return QFile::remove(file.fileName());
}

SubmitResult renderAndSend(const JobRequest& job, const std::vector<PageToPrint>& pages, int resolution,
                           const cups::CancelFlag& cancelled, const Report& report)
{
    SubmitResult result;
    QTemporaryFile file;
    const auto fileProblem = [&file] {
        return PrintRun::tr("No temporary file can be made: %1. Make room on the disk and try again.")
            .arg(file.errorString());
    };
    if (!openNameless(file)) {
        result.problem = fileProblem();
        return result;
    }
    result.problem = writePdf(file, pages, resolution, [&](double share) {
        report(share * kRenderingShare, false);
        return !cancelled->load();
    });
    result.wasCancelled = cancelled->load();
    if (!result.problem.isEmpty() || result.wasCancelled)
        return result;
    if (!file.flush() || !file.seek(0)) {
        result.problem = fileProblem();
        return result;
    }
    return submitJob(job, file, cancelled,
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
    if (result.jobId == 0) {
        const JobStage stage = result.wasCancelled ? JobStage::cancelled : JobStage::unknown;
        const QString words = result.wasCancelled ? tr("Cancelled: nothing was printed.") + result.problem
                                                  : tr("Nothing was printed. %1").arg(result.problem);
        finish({false, 0, stage, words});
        return;
    }
    follower_ = new JobFollower(job_.queue, result.jobId, patience_, this);
    follower_->compareWith(job_.options);
    connect(follower_, &JobFollower::changed, this, &PrintRun::takeStatus);
    connect(follower_, &JobFollower::ended, this, &PrintRun::takeEnd);
    connect(follower_, &JobFollower::compared, this, [this](JobReadBack job) {
        job.conceal(job_.secrets);
        Q_EMIT readBack(job, readBackSentence(job, follower_->jobId()));
    });
    connect(follower_, &JobFollower::actionFailed, this,
            [this](const QString& problem) { Q_EMIT followed(follower_->status(), problem); });
    Q_EMIT submitted(result.jobId);
    if (cancelled_->load())
        follower_->cancel();
}

void PrintRun::takeStatus(const JobStatus& status)
{
    const bool isCancelOpen = status.stage == JobStage::unknown && cancelled_->load();
    Q_EMIT followed(status, isCancelOpen ? tr("The print server does not answer. Job %1 is cancelled as soon "
                                              "as it does, if this window is still open.")
                                               .arg(follower_->jobId())
                                         : jobSentence(status, job_.queue, follower_->jobId()));
}

void PrintRun::takeEnd(const JobStatus& status)
{
    const int jobId = follower_->jobId();
    const QString sentence =
        status.stage == JobStage::unknown
            ? tr("Job %1 was sent to \"%2\", but the print server has not answered for %3 seconds: whether "
                 "it was printed is not known. Look at the printer before you print again.")
                  .arg(QString::number(jobId), job_.queue,
                       QString::number(
                           std::chrono::round<std::chrono::seconds>(patience_.untilGivenUp).count()))
            : jobSentence(status, job_.queue, jobId);
    finish({isPrinted(status.stage), jobId, status.stage, sentence});
}

void PrintRun::cancel()
{
    cancelled_->store(true);
    Q_EMIT cancelling();
    if (follower_)
        follower_->cancel();
}

void PrintRun::apply(Remedy remedy)
{
    if (follower_)
        follower_->apply(remedy);
}

void PrintRun::finish(PrintOutcome outcome)
{
    if (isOver_)
        return;
    isOver_ = true;
    Q_EMIT finished(outcome);
}

} // namespace halvern
