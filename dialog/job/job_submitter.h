#pragma once

#include "dialog/options/option_value.h"
#include "platform/printing/cups_connection.h"

#include <functional>

namespace halvern {

/// A job ready to be sent.
struct JobRequest {
    QString queue;
    QString title;
    QString documentPath; ///< a PDF file
    OptionValues options;
};

/// What became of sending it: a job number, or the sentence that says why there is none.
struct SubmitResult {
    int jobId = 0;
    QString problem;
    bool wasCancelled = false;
};

/// Creates the job and sends its document, on the calling worker. A job whose document could not be sent
/// whole is cancelled again. `progress` gets the share sent, from 0 to 1.
SubmitResult submitJob(const JobRequest& job, const cups::CancelFlag& cancelled,
                       const std::function<void(double)>& progress);

/// Cancels a job, on the calling worker. The sentence about a failure, empty on success or if the job has
/// already ended.
QString cancelJob(const QString& queue, int jobId);

} // namespace halvern
