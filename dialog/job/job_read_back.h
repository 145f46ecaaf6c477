// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/option_value.h"
#include "platform/printing/cups_connection.h"

#include <QSet>

namespace halvern {

/// An option that the server holds otherwise than it was sent; without `held`, not at all.
struct ChangedOption {
    QString key;
    QString sent;
    std::optional<QString> held;

    bool operator==(const ChangedOption&) const = default;
};

/// What a server holds of a job, beside what was sent.
struct JobReadBack {
    bool isKnown = false; ///< the server has told; without it, the rest says nothing
    OptionValues added;   ///< by the server, or by the queue's defaults
    QList<ChangedOption> changed;

    /// Puts something else in the place of these options' values.
    void conceal(const QSet<QString>& secrets);

    bool isEqual() const { return isKnown && added.isEmpty() && changed.isEmpty(); }
};

/// Compares what was sent with a server's answer about the job. What a server writes of every job (its state,
/// its times) is not taken for an addition, and neither is what it fills in that changes nothing. Any thread.
JobReadBack compareJob(const OptionValues& sent, _ipp_s* answer);

/// Asks the server for the job and compares, on the calling worker.
JobReadBack readBackJob(cups::Connection& server, const QString& queue, int jobId, const OptionValues& sent);

/// What came of it as a sentence: short if all is as it was sent, else with what was added and changed.
QString readBackSentence(const JobReadBack& job, int jobId);

} // namespace halvern
