// SPDX-License-Identifier: MIT
#include "dialog/job/user_job_list.h"

#include "platform/foundation/threads/work_queue.h"

#include <QPointer>

namespace halvern {

namespace {

constexpr int kRefreshMilliseconds = 2000;

} // namespace

UserJobList::UserJobList(QString queue, QObject* parent)
    : QObject(parent), queue_(std::move(queue)), stop_(cups::makeCancelFlag())
{
    timer_.setInterval(kRefreshMilliseconds);
    connect(&timer_, &QTimer::timeout, this, &UserJobList::ask);
}

UserJobList::~UserJobList()
{
    stop_->store(true);
}

void UserJobList::start()
{
    timer_.start();
    ask();
}

void UserJobList::setWithEnded(bool withEnded)
{
    withEnded_ = withEnded;
    ask();
}

void UserJobList::ask()
{
    mustAskAgain_ = isAsking_;
    if (isAsking_)
        return;
    isAsking_ = true;
    QPointer<UserJobList> self(this);
    WorkQueue().async([self, queue = queue_, withEnded = withEnded_, stop = stop_] {
        const UserJobs answer = askUserJobs(queue, withEnded, stop);
        mainQueue().async([self, answer] {
            if (self)
                self->take(answer);
        });
    });
}

void UserJobList::take(const UserJobs& answer)
{
    isAsking_ = false;
    const bool isFirst = !std::exchange(hasAnswer_, true);
    // A server that fails for a moment does not empty the list.
    const bool isNews =
        answer.problem != answer_.problem || (answer.problem.isEmpty() && answer.jobs != answer_.jobs);
    answer_.problem = answer.problem;
    if (answer.problem.isEmpty())
        answer_.jobs = answer.jobs;
    if (isFirst || isNews)
        Q_EMIT changed();
    if (mustAskAgain_)
        ask();
}

void UserJobList::apply(JobDeed deed, const UserJob& job, const QString& target)
{
    QPointer<UserJobList> self(this);
    WorkQueue().async([self, deed, queue = job.queue, id = job.id, target] {
        const ActionResult result = halvern::apply(deed, queue, id, target);
        mainQueue().async([self, result] {
            if (!self)
                return;
            Q_EMIT self->applied(result.problem);
            self->ask();
        });
    });
}

} // namespace halvern
