#include "dialog/job/job_follower.h"

#include "dialog/job/job_submitter.h"
#include "platform/foundation/threads/work_queue.h"

#include <QPointer>

namespace halvern {

namespace {

constexpr int kAskEveryMilliseconds = 300;
// After this many rounds without an answer the user hears of it.
constexpr int kPatientRounds = 2;

} // namespace

JobFollower::JobFollower(QString queue, int jobId, QObject* parent)
    : QObject(parent), queue_(std::move(queue)), jobId_(jobId), stop_(cups::makeCancelFlag())
{
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &JobFollower::ask);
    timer_.start(0);
}

JobFollower::~JobFollower()
{
    stop_->store(true);
}

void JobFollower::ask()
{
    QPointer<JobFollower> self(this);
    WorkQueue().async([self, queue = queue_, jobId = jobId_, stop = stop_] {
        const JobStatus status = askJobStatus(queue, jobId, stop);
        mainQueue().async([self, status] {
            if (self)
                self->take(status);
        });
    });
}

void JobFollower::take(const JobStatus& status)
{
    if (status.stage == JobStage::unknown && ++silentRounds_ < kPatientRounds) {
        timer_.start(kAskEveryMilliseconds);
        return;
    }
    if (status.stage != JobStage::unknown)
        silentRounds_ = 0;
    const bool isNew = status.stage != status_.stage || status.printerReasons != status_.printerReasons ||
                       status.message != status_.message || status.pagesDone != status_.pagesDone;
    status_ = status;
    if (hasEnded(status.stage)) {
        Q_EMIT ended(status);
        return;
    }
    timer_.start(kAskEveryMilliseconds);
    if (isNew)
        Q_EMIT changed(status);
}

void JobFollower::cancel()
{
    QPointer<JobFollower> self(this);
    WorkQueue().async([self, queue = queue_, jobId = jobId_] {
        const QString problem = cancelJob(queue, jobId);
        mainQueue().async([self, problem] {
            if (self && !problem.isEmpty())
                Q_EMIT self->cancelFailed(problem);
        });
    });
}

} // namespace halvern
