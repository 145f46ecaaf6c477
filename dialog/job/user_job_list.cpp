// SPDX-License-Identifier: MIT
#include "dialog/job/user_job_list.h"

#include <QPointer>

namespace halvern {

namespace {

constexpr int kRefreshMilliseconds = 2000;
// Well beyond the limits of a question: whoever looks up a host's name is out of their reach.
constexpr std::chrono::milliseconds kListStuck(60'000);

} // namespace

UserJobList::UserJobList(QString queue, QObject* parent)
    : QObject(parent),
      queue_(std::move(queue)),
      line_(std::make_shared<Line>()),
      stop_(cups::makeCancelFlag())
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
    if (isAsking_ && askedAt_.hasExpired(kListStuck.count())) {
        // The worker is left to itself.
        questions_ = WorkQueue();
        line_ = std::make_shared<Line>();
        isAsking_ = false;
    }
    mustAskAgain_ = isAsking_;
    if (isAsking_)
        return;
    isAsking_ = true;
    askedAt_.start();
    QPointer<UserJobList> self(this);
    questions_.async([self, line = line_, queue = queue_, withEnded = withEnded_, stop = stop_] {
        if (!line->server || !line->server->isConnected())
            line->server = std::make_unique<cups::Connection>(stop);
        const UserJobs answer = askUserJobs(*line->server, queue, withEnded);
        mainQueue().async([self, line, answer] {
            if (self && self->line_ == line)
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
