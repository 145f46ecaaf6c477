// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/server/saved_options.h"
#include "platform/printing/cups_connection.h"
#include "platform/printing/ppd.h"

namespace halvern {

/// What a queue lets its jobs be. A value.
struct JobOffer {
    QStringList sheets;         ///< banner pages, "none" among them; empty: it has none
    QStringList holds;          ///< keywords until when a job may be held; empty: none
    QStringList byDefault = {}; ///< the banner pages that the queue adds by itself, before and after
    QString hold = QStringLiteral("no-hold"); ///< what it does with a job that says nothing
    int priority = 50;
    QStringList asked = {}; ///< what the printer asks of its users: "username", "password"; "none": nothing

    bool operator==(const JobOffer&) const = default;
};

/// A queue's PPD as fetched and parsed, or the sentence that says why there is none.
struct QueuePpd {
    std::shared_ptr<ppd::File> file; ///< shared only to travel between threads: take it out once
    QString deviceUri;               ///< empty if the queue has none
    QString makeAndModel;            ///< what the server calls the printer; another one with another driver
    bool isWithoutPpd = false;       ///< described by what it or its printer says over IPP
    /// What the administrator set for the queue beside the PPD, for keywords that the PPD does not list.
    OptionValues defaults;
    QString jobSheets; ///< the banner pages that the queue adds by itself; empty if none
    JobOffer jobs;
    QString problem;
};

/// Fetches the PPD of a queue and parses it, on the calling worker; a queue without one is described by what
/// it or its printer says over IPP. The file belongs to whoever takes it out.
QueuePpd fetchQueuePpd(const QString& queue, const cups::CancelFlag& cancelled);

} // namespace halvern
