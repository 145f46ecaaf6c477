// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/option_value.h"
#include "platform/printing/cups_connection.h"

#include <QSet>

namespace halvern {

/// A job ready to be sent.
struct JobRequest {
    QString queue;
    QString title;
    OptionValues options;
    QSet<QString> secrets = {};                         ///< the options whose values nobody is to read
    QString format = QStringLiteral("application/pdf"); ///< the document's, a MIME type
    QStringList asked = {}; ///< what the printer asks of its users: "username", "password"; empty: nothing
    bool hasTextCollections = false; ///< takesCollectionsAsText()
    QString madeFrom = {}; ///< the printer's URI, where its queue is one that the server takes away again
};

/// What became of sending it: a job number, or the sentence that says why there is none.
struct SubmitResult {
    int jobId = 0;
    QString problem;
    bool wasCancelled = false;
    bool isDocumentAtFault = false; ///< it did not come to its end; `problem` says what is left of the job
};

/// Creates the job and sends its document, which comes in pieces, on the calling worker. A job whose
/// document did not arrive whole is cancelled again, for some seconds if need be. Nothing is asked of the
/// server before there is a first piece.
SubmitResult submitJob(const JobRequest& job, const cups::NextPiece& nextPiece,
                       const cups::CancelFlag& cancelled);

} // namespace halvern
