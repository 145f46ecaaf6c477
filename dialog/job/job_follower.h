#pragma once

#include "dialog/job/job_status.h"

#include <QObject>
#include <QTimer>

namespace halvern {

/// Watches a job until it has ended for good, asking the server from a worker. Main thread only; deleting it
/// stops the watch at once.
class JobFollower : public QObject {
    Q_OBJECT

public:
    JobFollower(QString queue, int jobId, QObject* parent);
    ~JobFollower() override;

    int jobId() const { return jobId_; }

    const JobStatus& status() const { return status_; }

    /// Asks the server to cancel the job; the change of status follows by the watch.
    void cancel();

Q_SIGNALS:
    /// The status has changed.
    void changed(const halvern::JobStatus& status);
    /// The job has ended; nothing follows.
    void ended(const halvern::JobStatus& status);
    /// Cancelling failed; a sentence.
    void cancelFailed(const QString& problem);

private:
    void ask();
    void take(const JobStatus& status);

    QString queue_;
    int jobId_;
    JobStatus status_;
    QTimer timer_;
    cups::CancelFlag stop_;
    int silentRounds_ = 0;
};

} // namespace halvern
