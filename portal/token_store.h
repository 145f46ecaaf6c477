// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/job/job_submitter.h"
#include "dialog/options/ppd_model.h"
#include "dialog/session/session_request.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <map>
#include <optional>

namespace halvern {

/// What somebody accepted in a dialog for a document that is still to come.
struct PreparedJob {
    QString application; ///< its identifier: nobody else's document is printed so
    JobRequest order;
    SessionRequest review; ///< the dialog that shows the document with the same settings
    SheetGeometry sheet = {};
    int resolution = 300; ///< dots per inch
};

/// Prepared jobs by numbers that nobody can guess. Each is handed out once, and forgotten after a while. Main
/// thread only.
class TokenStore : public QObject {
    Q_OBJECT

public:
    explicit TokenStore(std::chrono::milliseconds life = std::chrono::minutes(10)) : life_(life) {}

    ~TokenStore() override;

    /// The number is never 0. The oldest job goes if there are too many.
    quint32 keep(PreparedJob job);

    /// Nothing if the number is none, was used, has expired, or is another application's. It is used up then,
    /// too.
    std::optional<PreparedJob> take(quint32 token, const QString& application);

    bool isEmpty() const { return kept_.empty(); }

Q_SIGNALS:
    /// The last one has gone.
    void emptied();

private:
    struct Kept {
        PreparedJob job;
        std::unique_ptr<QTimer> end;
        quint64 number = 0; // grows
    };

    void forget(quint32 token);

    std::chrono::milliseconds life_;
    std::map<quint32, Kept> kept_;
    quint64 last_ = 0;
};

} // namespace halvern
