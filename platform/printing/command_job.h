// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"
#include "platform/printing/jobs.h"

#include <QStringList>

#include <functional>

namespace HALVERN_EXPORT halvern {

/// The document of a command job: its header line, then the commands, each line ended by one line feed.
QString commandFile(const QStringList& commands);

/// A job that asks something of a queue's printer instead of printing: created, sent, watched until it ends,
/// taken back. Over a connection of its own; one thread at a time, every call blocks on the CUPS server.
class CommandJob {
public:
    enum class End {
        completed,
        failed, ///< it has ended otherwise, is held, or is not known to the server
        enough, ///< the caller's wish; the job is where it was
        silent, ///< the server does not answer: the job may still be there; with AfterSilence::end only
    };

    /// What a server that is silent once means to a watch: nothing in particular, or its end.
    enum class AfterSilence { ask, end };

    /// With the ID of a job that was sent before, to watch it.
    explicit CommandJob(QString queue, int id = 0) : queue_(std::move(queue)), id_(id) {}

    /// 0 or less: no job could be created.
    int id() const { return id_; }

    /// The job that the queue is processing; 0 if none, or if the server does not say.
    int processingJob();

    /// Creates the job and sends its document. What becomes of that shows in the watch, also if there is no
    /// job.
    void send(const QStringList& commands);

    /// Returns when the job has ended, or when `isEnough`, asked before each look, says so. `pause` waits
    /// between two looks; false if it was cut short, which ends the watch, too.
    End watch(const std::function<bool()>& isEnough, const std::function<bool()>& pause,
              AfterSilence afterSilence);

    /// Cancels the job and removes it from the server's history. False if the server refuses.
    bool takeBack() { return server_.cancelAndPurge(queue_, id_); }

    /// Whether the last call ended because the server was silent.
    bool wasSilent() const { return server_.wasSilent(); }

private:
    QString queue_;
    int id_;
    jobs::Server server_;
};

} // namespace halvern
