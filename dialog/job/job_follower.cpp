// SPDX-License-Identifier: MIT
#include "dialog/job/job_follower.h"

#include <QPointer>

namespace halvern {

namespace {

constexpr int kAskEveryMilliseconds = 300;
// Well beyond the limits of a question: whoever looks up a host's name is out of their reach.
constexpr std::chrono::seconds kStuck(15);

} // namespace

JobFollower::JobFollower(QString queue, int jobId, Patience patience, QObject* parent)
    : QObject(parent),
      queue_(std::move(queue)),
      jobId_(jobId),
      line_(std::make_shared<Line>()),
      stop_(cups::makeCancelFlag())
{
    for (QTimer* timer : {&timer_, &silence_, &patienceEnd_})
        timer->setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &JobFollower::ask);
    // Not the failed questions are counted: one of them may take any time.
    connect(&silence_, &QTimer::timeout, this, &JobFollower::tellSilence);
    connect(&patienceEnd_, &QTimer::timeout, this, [this] { end({}); });
    silence_.setInterval(patience.untilTold);
    patienceEnd_.setInterval(patience.untilGivenUp);
    timer_.start(0);
    silence_.start();
    if (patience.untilGivenUp.count() > 0)
        patienceEnd_.start();
}

JobFollower::~JobFollower()
{
    stop_->store(true);
}

void JobFollower::ask()
{
    askedAt_.start();
    QPointer<JobFollower> self(this);
    questions_.async([self, line = line_, queue = queue_, jobId = jobId_, sent = sent_, stop = stop_] {
        if (!line->server || !line->server->isConnected())
            line->server = std::make_unique<cups::Connection>(stop, kJobQuestionLimits);
        cups::Connection& server = *line->server;
        const JobReadBack job = sent ? readBackJob(server, queue, jobId, *sent) : JobReadBack();
        const JobStatus status = askJobStatus(server, queue, jobId);
        mainQueue().async([self, job, status, stop] {
            if (!self || stop->load())
                return;
            self->takeComparison(job, status.stage);
            self->take(status);
        });
    });
}

// A server that does not answer is asked again, one that has told of the job's end is not.
void JobFollower::takeComparison(const JobReadBack& job, JobStage stage)
{
    if (!sent_ || (!job.isKnown && !hasEnded(stage)))
        return;
    sent_.reset();
    Q_EMIT compared(job);
}

void JobFollower::take(const JobStatus& status)
{
    timer_.start(kAskEveryMilliseconds);
    if (status.stage == JobStage::unknown)
        return;
    silence_.start();
    isSilent_ = false;
    if (patienceEnd_.isActive())
        patienceEnd_.start();
    if (hasEnded(status.stage)) {
        end(status);
        return;
    }
    wasPrinting_ = status.stage == JobStage::printing;
    const bool isNew = status != status_;
    status_ = status;
    if (wantsCancel_)
        sendCancel();
    if (isNew)
        Q_EMIT changed(status);
}

void JobFollower::tellSilence()
{
    replaceStuckWorker();
    silence_.start();
    if (std::exchange(isSilent_, true))
        return;
    status_ = {};
    wasPrinting_ = false;
    Q_EMIT changed(status_);
}

// The old one is left to itself.
void JobFollower::replaceStuckWorker()
{
    if (timer_.isActive() || !askedAt_.hasExpired(std::chrono::milliseconds(kStuck).count()))
        return;
    questions_ = WorkQueue();
    line_ = std::make_shared<Line>();
    ask();
}

void JobFollower::end(const JobStatus& status)
{
    stop_->store(true);
    for (QTimer* timer : {&timer_, &silence_, &patienceEnd_})
        timer->stop();
    status_ = status;
    Q_EMIT ended(status);
}

void JobFollower::cancel()
{
    wantsCancel_ = true;
    sendCancel();
}

void JobFollower::sendCancel()
{
    if (isCancelling_)
        return;
    isCancelling_ = true;
    QPointer<JobFollower> self(this);
    WorkQueue().async([self, queue = queue_, jobId = jobId_] {
        const ActionResult result = cancelJob(queue, jobId);
        mainQueue().async([self, result] {
            if (!self)
                return;
            self->isCancelling_ = false;
            self->wantsCancel_ = !result.isAnswered;
            if (result.isAnswered && !result.problem.isEmpty())
                Q_EMIT self->actionFailed(result.problem);
        });
    });
}

void JobFollower::apply(Remedy remedy)
{
    QPointer<JobFollower> self(this);
    WorkQueue().async([self, remedy, queue = queue_, jobId = jobId_] {
        const QString problem = applyRemedy(remedy, queue, jobId).problem;
        mainQueue().async([self, problem] {
            if (self && !problem.isEmpty())
                Q_EMIT self->actionFailed(problem);
        });
    });
}

} // namespace halvern
