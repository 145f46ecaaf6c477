#pragma once

#include "platform/printing/cups_connection.h"

#include <QStringList>

namespace halvern {

/// What a job is doing, in the stages that a user tells apart.
enum class JobStage {
    unknown, ///< the server has not answered, or has forgotten the job
    waiting, ///< pending, and its printer will get to it
    blocked, ///< pending, and its printer is paused
    held,
    printing,
    stopped, ///< stopped in the middle
    cancelled,
    aborted,
    completed,
};

struct JobStatus {
    JobStage stage = JobStage::unknown;
    QStringList reasons;        ///< the job's state reasons, without "none"
    QStringList printerReasons; ///< its printer's
    QString message;            ///< what the printer's driver last said
    int pagesDone = 0;
    QString problem; ///< why the server could not be asked; a sentence
};

/// Asks the server about a job, on the calling worker.
JobStatus askJobStatus(const QString& queue, int jobId, const cups::CancelFlag& cancelled);

/// Whether the job has ended for good.
bool hasEnded(JobStage stage);

/// Whether the job stays as it is until somebody does something.
bool isResting(JobStage stage);

/// The status as a sentence in the user's language: what happened, why, and what to do.
QString jobSentence(const JobStatus& status, const QString& printer, int jobId);

/// Why a job does not get on, as " (out of paper, Filter failed)"; empty if nothing is known.
QString jobReasons(const JobStatus& status);

} // namespace halvern
