// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/option_value.h"
#include "platform/printing/cups_connection.h"

#include <QIODevice>
#include <QSet>

#include <functional>

namespace halvern {

/// A job ready to be sent.
struct JobRequest {
    QString queue;
    QString title;
    OptionValues options;
    QSet<QString> secrets = {}; ///< the options whose values nobody is to read
};

/// What became of sending it: a job number, or the sentence that says why there is none.
struct SubmitResult {
    int jobId = 0;
    QString problem;
    bool wasCancelled = false;
};

/// Creates the job and sends its document, a PDF that `document` holds from its beginning, on the calling
/// worker. A job whose document did not arrive whole is cancelled again, for some seconds if need be.
/// `progress` gets the share sent, from 0 to 1.
SubmitResult submitJob(const JobRequest& job, QIODevice& document, const cups::CancelFlag& cancelled,
                       const std::function<void(double)>& progress);

} // namespace halvern
