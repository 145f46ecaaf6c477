// SPDX-License-Identifier: MIT
#pragma once

#include "platform/printing/cups_connection.h"

#include <QStringList>

namespace halvern {

/// A printer's own name and password travel beside a job, as "auth-info", and nowhere else. All of this on
/// any thread; what asks, on a worker.

/// What a job was given.
using AuthInfo = std::optional<cups::Login>;

/// Adds what a printer asks of its users ("username", "password", "domain") to a request about a job of its
/// queue, and tells in `given` what that is. The connection is encrypted first, if it can be. The user is
/// asked once. The sentence if the answer is missing; empty if all is there.
QString addAuthInfo(cups::Connection& server, _ipp_s* request, const QString& queue, const QStringList& asked,
                    const cups::CancelFlag& cancelled, AuthInfo& given);

/// A job of the queue has been sent with that. What becomes of the job tells whether it is right.
void rememberAuthInfo(const cups::Connection& server, const QString& queue, int jobId, const AuthInfo& given);

/// The job has been printed: what it was sent with is right, and is kept for later if the user wants that.
void authInfoWasRight(const cups::Connection& server, const QString& queue, int jobId);

/// The printer has turned down what the job was sent with: that is not given again. Once for a job; what the
/// user has given since stays.
void forgetAuthInfo(const cups::Connection& server, const QString& queue, int jobId);

/// The same for a job that may have been given its login by another process: then the keyring's is not given
/// again, either.
void askForOtherAuthInfo(const cups::Connection& server, const QString& queue, int jobId);

/// What the queue asks of its users.
QStringList askedOfUsers(cups::Connection& server, const QString& queue);

} // namespace halvern
