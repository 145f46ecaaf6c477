// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/job/user_jobs.h"

#include <QObject>
#include <QTimer>

namespace halvern {

/// The user's jobs on a queue, kept up to date by workers while somebody looks. Main thread only, never
/// waits.
class UserJobList : public QObject {
    Q_OBJECT

public:
    UserJobList(QString queue, QObject* parent);
    ~UserJobList() override;

    const QString& queue() const { return queue_; }

    const UserJobs& answer() const { return answer_; }

    /// Whether the server has answered, or failed to, at least once.
    bool hasAnswer() const { return hasAnswer_; }

    /// Starts asking, or goes on at once.
    void start();

    /// Asks no more until start().
    void pause() { timer_.stop(); }

    /// Whether jobs that have ended are asked for, too.
    void setWithEnded(bool withEnded);

    /// Does something to a job; applied() follows, and the list as it then is.
    void apply(JobDeed deed, const UserJob& job, const QString& target = {});

Q_SIGNALS:
    /// The jobs or the problem have changed; the first answer always counts.
    void changed();
    /// The sentence about what could not be done; empty if it was.
    void applied(const QString& problem);

private:
    void ask();
    void take(const UserJobs& answer);

    QString queue_;
    UserJobs answer_;
    QTimer timer_;
    bool withEnded_ = true;
    bool hasAnswer_ = false;
    bool isAsking_ = false;
    bool mustAskAgain_ = false;
    cups::CancelFlag stop_;
};

} // namespace halvern
