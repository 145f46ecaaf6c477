// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/job/job_actions.h"
#include "dialog/job/job_read_back.h"
#include "platform/foundation/threads/work_queue.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <chrono>

namespace halvern {

/// How long a follower bears with a server that has gone silent.
struct Patience {
    std::chrono::milliseconds untilTold{4000};
    std::chrono::milliseconds untilGivenUp{0}; ///< 0: never
};

/// Watches a job until it has ended for good, asking the server from a worker. Main thread only; deleting it
/// stops the watch at once.
class JobFollower : public QObject {
    Q_OBJECT

public:
    JobFollower(QString queue, int jobId, Patience patience, QObject* parent);
    ~JobFollower() override;

    int jobId() const { return jobId_; }

    const JobStatus& status() const { return status_; }

    /// Has the job read back and compared with what was sent; compared() follows, before ended() if it can.
    void compareWith(const OptionValues& sent) { sent_ = sent; }

    /// Asks the server to cancel the job, again and again until it answers; the change of status follows by
    /// the watch.
    void cancel();

    /// The same once it has said that the job is still there.
    void cancelUnlessEnded() { wantsCancel_ = true; }

    /// Whether the job was printing, with nothing in its way, when the server last told of it.
    bool wasPrinting() const { return wasPrinting_; }

    /// Asks the server to get the resting job on its way; the change of status follows too.
    void apply(Remedy remedy);

Q_SIGNALS:
    /// The status has changed, or the server has been silent for a while (JobStage::unknown).
    void changed(const halvern::JobStatus& status);
    /// The job has ended, or the patience has (JobStage::unknown); nothing follows.
    void ended(const halvern::JobStatus& status);
    /// What compareWith() asked for; emitted once.
    void compared(const halvern::JobReadBack& job);
    /// What was asked of the server was not done; a sentence.
    void actionFailed(const QString& problem);

private:
    void ask();
    void take(const JobStatus& status);
    void takeComparison(const JobReadBack& job, JobStage stage);
    void sendCancel();
    void tellSilence();
    void replaceStuckWorker();
    void end(const JobStatus& status);

    /// The connection that all questions share; touched by their queue only.
    struct Line {
        std::unique_ptr<cups::Connection> server;
    };

    QString queue_;
    int jobId_;
    JobStatus status_;
    std::optional<OptionValues> sent_; // until they have been compared
    QTimer timer_;
    QTimer silence_;
    QTimer patienceEnd_;
    QElapsedTimer askedAt_;
    WorkQueue questions_;
    std::shared_ptr<Line> line_;
    cups::CancelFlag stop_;
    bool isSilent_ = false;
    bool wasPrinting_ = false;
    bool wantsCancel_ = false;
    bool isCancelling_ = false;
};

} // namespace halvern
