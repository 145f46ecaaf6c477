// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/job/job_actions.h"

#include <QDateTime>

#include <vector>

namespace halvern {

/// A job of the user's as a list shows it. A value.
struct UserJob {
    int id = 0;
    QString queue;
    QString title;
    JobStatus status;
    int pages = 0;       ///< of the document; 0 if the server does not know
    QDateTime sent;      ///< invalid if the server does not know
    bool isKept = false; ///< the server has the document still

    bool operator==(const UserJob&) const = default;
};

/// What the server answered about the user's jobs.
struct UserJobs {
    std::vector<UserJob>
        jobs;        ///< those that have not ended in the order of printing, then the ended, newest first
    QString problem; ///< the sentence if it could not be asked
};

/// Asks for the user's jobs on a queue, or on all of them if `queue` is empty, on the calling worker.
UserJobs askUserJobs(cups::Connection& server, const QString& queue, bool withEnded);

/// What a user may want of a job.
enum class JobDeed { cancel, hold, release, printAgain, move, signIn };

/// Whether that can be done to a job in this state, as far as the server has told.
bool isPossible(JobDeed deed, const UserJob& job);

/// Does it, on the calling worker; `target` is the queue to move to. What cannot be done is a problem.
ActionResult apply(JobDeed deed, const QString& queue, int jobId, const QString& target = {});

/// "Printing", "Held (out of paper)" and so on, in the user's language.
QString jobStateText(const UserJob& job);

/// "3 of 12", "3", or nothing if nothing is known.
QString jobPagesText(const UserJob& job);

/// The place of a job among others; -1 if it is not there.
int indexOfJob(const std::vector<UserJob>& jobs, int id);

} // namespace halvern
