// SPDX-License-Identifier: MIT
#include "dialog/job/print_run.h"

#include "dialog/job/page_stream.h"
#include "platform/foundation/list_text.h"
#include "platform/foundation/threads/work_queue.h"

#include <QFile>
#include <QPointer>

#include <algorithm>

namespace halvern {

namespace {

// What the worker that sends is told and asked.
struct Sending {
    JobRequest job;
    std::vector<SheetToPrint> sheets;
    size_t photosPerJob = 0; // 0: all in one
    PdfQuality quality;
    QString document; // in place of pages
    cups::CancelFlag cancelled;
    std::shared_ptr<std::atomic<bool>> paused;
    std::function<void(double)> report;
    std::function<void(int)> reportJob; // one that the server has whole
};

QString numbered(const QString& title, size_t job, size_t jobs)
{
    return jobs > 1 ? QStringLiteral("%1 (%2/%3)").arg(title).arg(job + 1).arg(jobs) : title;
}

SubmitResult sendPages(const Sending& sending, const JobRequest& job, size_t first, size_t count)
{
    const double share = double(count) / double(sending.sheets.size());
    const double before = double(first) / double(sending.sheets.size());
    const auto keepGoing = [=, report = sending.report, cancelled = sending.cancelled](double done) {
        report(before + done * share);
        return !cancelled->load();
    };
    const auto from = sending.sheets.begin() + std::ptrdiff_t(first);
    PageStream stream({from, from + std::ptrdiff_t(count)}, sending.quality,
                      {keepGoing, [paused = sending.paused] { return paused->load(); }});
    SubmitResult result = submitJob(
        job, [&stream] { return stream.next(); }, sending.cancelled);
    if (result.isDocumentAtFault && !result.wasCancelled)
        result.problem = stream.problem() + result.problem;
    return result;
}

SentJobs sendFile(const Sending& sending)
{
    constexpr qint64 kPiece = 64 * 1024;
    QFile file(sending.document);
    file.open(QIODevice::ReadOnly);
    const SubmitResult result = submitJob(
        sending.job,
        [&]() -> std::optional<QByteArray> {
            const QByteArray piece = file.isOpen() ? file.read(kPiece) : QByteArray();
            if (!file.isOpen() || (piece.isEmpty() && !file.atEnd()))
                return std::nullopt;
            sending.report(double(file.pos()) / double(std::max(file.size(), qint64(1))));
            return piece;
        },
        sending.cancelled);
    SentJobs sent;
    sent.wasCancelled = result.wasCancelled;
    sent.problem = result.problem;
    if (result.isDocumentAtFault && !result.wasCancelled)
        sent.problem = PrintRun::tr("The document cannot be read any more: %1. Print it once more.")
                           .arg(file.errorString()) +
                       result.problem;
    if (result.jobId > 0)
        sent.ids.append(result.jobId);
    sent.isAll = result.jobId > 0;
    return sent;
}

// The sheets of one job.
struct Share {
    size_t first;
    size_t sheets;
    size_t photos;
};

// A sheet is not divided, so that a job may have more photos where one sheet has.
std::vector<Share> sharesOf(const std::vector<SheetToPrint>& sheets, size_t photosPerJob)
{
    std::vector<Share> shares;
    for (size_t i = 0; i < sheets.size(); ++i) {
        const size_t photos = sheets[i].photos.size();
        if (shares.empty() || (photosPerJob > 0 && shares.back().photos + photos > photosPerJob))
            shares.push_back({i, 0, 0});
        ++shares.back().sheets;
        shares.back().photos += photos;
    }
    return shares;
}

int photosOn(const std::vector<SheetToPrint>& sheets)
{
    size_t count = 0;
    for (const SheetToPrint& sheet : sheets)
        count += sheet.photos.size();
    return int(count);
}

SentJobs send(const Sending& sending)
{
    if (!sending.document.isEmpty())
        return sendFile(sending);
    SentJobs sent;
    const std::vector<Share> shares = sharesOf(sending.sheets, sending.photosPerJob);
    for (size_t i = 0; i < shares.size(); ++i) {
        JobRequest job = sending.job;
        job.title = numbered(job.title, i, shares.size());
        const SubmitResult result = sendPages(sending, job, shares[i].first, shares[i].sheets);
        sent.problem = result.problem;
        sent.wasCancelled = result.wasCancelled;
        if (result.jobId == 0)
            break;
        sent.ids.append(result.jobId);
        sending.reportJob(result.jobId);
        sent.photos += int(shares[i].photos);
    }
    sent.isAll = size_t(sent.ids.size()) == shares.size();
    return sent;
}

// The last one first: the server would begin with the next in the meantime.
void cancelJobs(const QString& queue, const QList<int>& ids)
{
    for (auto id = ids.crbegin(); id != ids.crend(); ++id)
        cancelJob(queue, *id);
}

} // namespace

PrintRun::PrintRun(JobRequest job, std::vector<SheetToPrint> sheets, PdfQuality quality, QObject* parent)
    : QObject(parent),
      job_(std::move(job)),
      sheets_(std::move(sheets)),
      quality_(std::move(quality)),
      cancelled_(cups::makeCancelFlag()),
      paused_(cups::makeCancelFlag()),
      progress_(photosOn(sheets_))
{
}

PrintRun::PrintRun(JobRequest job, const QString& document, QObject* parent)
    : QObject(parent),
      job_(std::move(job)),
      document_(document),
      cancelled_(cups::makeCancelFlag()),
      paused_(cups::makeCancelFlag()),
      progress_(1)
{
}

PrintRun::~PrintRun()
{
    cancelled_->store(true);
}

void PrintRun::start()
{
    QPointer<PrintRun> self(this);
    progress_.start();
    const auto report = [self](double share) {
        mainQueue().async([self, share] {
            if (self && !self->isOver_)
                self->takeProgress(share);
        });
    };
    const auto reportJob = [self](int id) {
        mainQueue().async([self, id] {
            if (self)
                self->sent_.ids.append(id);
        });
    };
    Sending sending{job_,   std::move(sheets_), photosPerJob_, quality_, document_, cancelled_, paused_,
                    report, reportJob};
    const bool isStarted = WorkQueue().async([self, sending = std::move(sending)] {
        const SentJobs sent = send(sending);
        mainQueue().async([self, sent] {
            if (self)
                self->takeSubmission(sent);
        });
    });
    if (!isStarted) {
        SentJobs none;
        none.problem = tr("The computer is too busy to send it. Close something and try again.");
        mainQueue().async([self, none] {
            if (self)
                self->takeSubmission(none);
        });
    }
}

void PrintRun::takeProgress(double share)
{
    share_ = share;
    Q_EMIT progressed(share, progress_.words(share));
}

void PrintRun::setPaused(bool paused)
{
    paused_->store(paused);
    progress_.setPaused(paused);
    takeProgress(share_);
}

void PrintRun::takeSubmission(const SentJobs& sent)
{
    sent_ = sent;
    if (sent.ids.isEmpty()) {
        const JobStage stage = sent.wasCancelled ? JobStage::cancelled : JobStage::unknown;
        const QString words = sent.wasCancelled ? tr("Cancelled: nothing was printed.") + sent.problem
                                                : tr("Nothing was printed. %1").arg(sent.problem);
        finish({false, 0, stage, words});
        return;
    }
    if (isStopped_) {
        finishLeft();
        return;
    }
    followNext();
    Q_EMIT submitted(follower_->jobId());
    if (cancelled_->load())
        cancelLeft();
}

void PrintRun::followNext()
{
    if (follower_)
        follower_->deleteLater();
    follower_ = new JobFollower(job_.queue, sent_.ids.at(followed_++), patience_, this);
    follower_->compareWith(job_.options);
    connect(follower_, &JobFollower::changed, this, &PrintRun::takeStatus);
    connect(follower_, &JobFollower::ended, this, &PrintRun::takeEnd);
    connect(follower_, &JobFollower::compared, this, [this](JobReadBack job) {
        job.conceal(job_.secrets);
        Q_EMIT readBack(job, readBackSentence(job, follower_->jobId()));
    });
    connect(follower_, &JobFollower::actionFailed, this,
            [this](const QString& problem) { Q_EMIT followed(follower_->status(), problem); });
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
    const bool isPrinted =
        status.stage == JobStage::completed || (status.stage == JobStage::gone && follower_->wasPrinting());
    const bool isUntold = status.stage == JobStage::gone && !isPrinted;
    takeJobEnd({isPrinted, jobId, status.stage,
                isUntold ? sentence + QLatin1Char(' ') + tr("Look at the printer before you print again.")
                         : sentence});
}

void PrintRun::takeJobEnd(const PrintOutcome& outcome)
{
    if (followed_ == 1 || outcome_.printed)
        outcome_ = outcome;
    printedJobs_ += outcome.printed ? 1 : 0;
    if (outcome.stage == JobStage::cancelled)
        sheetsOfCancelled_ += follower_->status().pagesDone;
    if (followed_ < sent_.ids.size() && outcome.stage != JobStage::unknown) {
        followNext();
        if (cancelled_->load())
            follower_->cancelUnlessEnded();
        return;
    }
    finish(outcomeOfAll());
}

PrintOutcome PrintRun::outcomeOfAll() const
{
    const qsizetype jobs = sent_.ids.size();
    if (sent_.isAll && jobs == 1 && (outcome_.stage != JobStage::cancelled || sheetsOfCancelled_ == 0))
        return outcome_;
    PrintOutcome result = outcome_;
    if (printedJobs_ == 0 && sheetsOfCancelled_ > 0 && outcome_.stage == JobStage::cancelled) {
        result = {false, 0, JobStage::aborted,
                  tr("Cancelled. Sheets that were printed before: %1.").arg(sheetsOfCancelled_)};
    } else if (cancelled_->load() && outcome_.stage != JobStage::unknown &&
               !(sent_.isAll && outcome_.printed)) {
        // It is not true of all of them that nothing was printed.
        if (printedJobs_ > 0)
            result = {false, 0, JobStage::aborted,
                      tr("Cancelled. Jobs that were printed before: %1.").arg(printedJobs_)};
        else
            result = {false, 0, JobStage::cancelled, tr("Cancelled: nothing was printed.")};
    } else if (!sent_.isAll) {
        result = {false, 0, JobStage::aborted,
                  tr("%1 photos went out in %2 jobs; the others were not sent. %3")
                      .arg(QString::number(sent_.photos), QString::number(jobs), sent_.problem)
                      .trimmed()};
    } else if (outcome_.printed) {
        result.sentence = tr("%1 photos were printed in %2 jobs, %3 to %4.")
                              .arg(QString::number(sent_.photos), QString::number(jobs),
                                   QString::number(sent_.ids.first()), QString::number(sent_.ids.last()));
    }
    return result;
}

void PrintRun::cancel()
{
    cancelled_->store(true);
    Q_EMIT cancelling();
    cancelLeft();
}

// All that have not ended, at once: neither this window nor a silent server keeps the others going.
void PrintRun::cancelLeft()
{
    const QList<int> left = sent_.ids.mid(std::max<qsizetype>(followed_ - 1, 0));
    if (left.size() <= 1 && follower_) {
        follower_->cancel();
        return;
    }
    if (left.isEmpty())
        return;
    QPointer<JobFollower> follower(follower_);
    WorkQueue().async([follower, left, queue = job_.queue] {
        cancelJobs(queue, left);
        mainQueue().async([follower] {
            if (follower)
                follower->cancelUnlessEnded();
        });
    });
}

void PrintRun::stop()
{
    isStopped_ = true;
    cancelled_->store(true);
    Q_EMIT cancelling();
    if (follower_)
        finishLeft();
}

void PrintRun::finishLeft()
{
    QStringList ids;
    for (const int id : sent_.ids)
        ids.append(QString::number(id));
    finish(
        {false, sent_.ids.last(), JobStage::waiting,
         tr("Stopped. These jobs are on the queue \"%1\" and stay there: %2.").arg(job_.queue, listText(ids)),
         true});
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
