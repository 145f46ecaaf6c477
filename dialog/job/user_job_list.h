// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/job/user_jobs.h"

#include "platform/foundation/threads/work_queue.h"

#include <QElapsedTimer>
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

    /// The connection that all questions share; touched by their queue only.
    struct Line {
        std::unique_ptr<cups::Connection> server;
    };

    QString queue_;
    UserJobs answer_;
    QTimer timer_;
    QElapsedTimer askedAt_;
    WorkQueue questions_;
    std::shared_ptr<Line> line_;
    bool withEnded_ = true;
    bool hasAnswer_ = false;
    bool isAsking_ = false;
    bool mustAskAgain_ = false;
    cups::CancelFlag stop_;
};

} // namespace halvern
