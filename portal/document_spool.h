// SPDX-License-Identifier: MIT
#pragma once

#include "platform/printing/cups_connection.h"
#include "portal/document_kind.h"

#include <QObject>

#include <memory>

namespace halvern {

/// A document in a file that only this user may read. The file goes with the last copy. A value.
struct SpooledDocument {
    std::shared_ptr<const QString> path; ///< null if there is a problem
    DocumentKind kind = DocumentKind::unknown;
    QString problem; ///< a sentence for the user
};

/// Reads a document from a descriptor, wherever it stands, to its end: of a file, a pipe or a socket. A
/// worker does it, into the user's run-time folder, or, where little room is left in that, into the one for
/// large temporary files. Main thread only.
class DocumentSpool : public QObject {
    Q_OBJECT

public:
    /// Deleting it stops the reading.
    ~DocumentSpool() override;

    /// Once. `descriptor` is copied; `title` is what the file is called.
    void start(int descriptor, const QString& title);

    /// Nobody waits for it any more: a writer that then keeps silent for some seconds is given up.
    void hurry() { hurry_->store(true); }

    /// There is no thread to read with.
    static QString tooBusySentence();

Q_SIGNALS:
    void finished(const halvern::SpooledDocument& document);

private:
    cups::CancelFlag stop_ = cups::makeCancelFlag();
    cups::CancelFlag hurry_ = cups::makeCancelFlag();
};

/// Removes what programs that were ended have left in the folders.
void removeOldSpools();

} // namespace halvern
