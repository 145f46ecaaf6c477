// SPDX-License-Identifier: MIT
#pragma once

#include "platform/printing/cups_connection.h"

#include <QStringList>

namespace halvern {

/// What a job is doing, in the stages that a user tells apart. All of this on any thread, but for asking.
enum class JobStage {
    unknown, ///< the server has not answered
    waiting, ///< pending, and its printer will get to it
    blocked, ///< pending, and its printer is paused
    held,
    printing,
    stopped, ///< stopped in the middle
    cancelled,
    aborted,
    completed,
    gone, ///< not known to the server any more: it has left the queue, and no record of it is kept
    lost, ///< its queue is not on the server any more, and the job neither
};

/// What can be done about a job that rests.
enum class Remedy { none, resumePrinter, releaseJob, restartJob };

struct JobStatus {
    JobStage stage = JobStage::unknown;
    QStringList reasons;        ///< the job's state reasons, without "none"
    QStringList printerReasons; ///< its printer's
    QString message;            ///< what the printer's driver last said
    int pagesDone = 0;
    QString problem; ///< why the server could not be asked; a sentence

    bool operator==(const JobStatus&) const = default;
};

/// Asks the server about a job that it has accepted, on the calling worker. If it does not know the job any
/// more, it is asked once whether it knows the queue.
JobStatus askJobStatus(const QString& queue, int jobId, const cups::CancelFlag& cancelled);

/// The same over a connection that is there for many such questions.
JobStatus askJobStatus(cups::Connection& server, const QString& queue, int jobId);

/// What a server may take for a question about a job: the next one follows soon.
inline constexpr cups::Limits kJobQuestionLimits{std::chrono::seconds(3), std::chrono::seconds(3)};

/// The stage of a job in this IPP state, whose reasons and whose printer's reasons `status` has.
JobStage stageOf(int ippState, const JobStatus& status);

/// Whether the job has ended for good.
bool hasEnded(JobStage stage);

/// Whether the printer has turned down the name and the password that came with the job, or had none.
bool isHeldForLogin(const JobStatus& status);

/// Whether the job stays as it is until somebody does something.
bool isResting(JobStage stage);

/// What gets a resting job on its way again.
Remedy remedyFor(const JobStatus& status);

/// The status as a sentence in the user's language: what happened, and why.
QString jobSentence(const JobStatus& status, const QString& printer, int jobId);

/// What to do about a resting job in a terminal: a sentence with the commands; empty if nothing is to be
/// done.
QString jobAdvice(const JobStatus& status, const QString& printer, int jobId);

/// Why a job does not get on, as " (out of paper, Filter failed)"; empty if nothing is known.
QString jobReasons(const JobStatus& status);

} // namespace halvern
