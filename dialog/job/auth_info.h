// SPDX-License-Identifier: MIT
#pragma once

#include "platform/printing/cups_connection.h"

#include <QStringList>

namespace halvern {

/// A printer's own name and password travel beside a job, as "auth-info", and nowhere else.

/// Adds what a printer asks of its users ("username", "password", "domain") to a request about a job of its
/// queue. The user is asked once, on the calling worker. False if the answer is missing.
bool addAuthInfo(const cups::Connection& server, _ipp_s* request, const QString& queue,
                 const QStringList& asked, const cups::CancelFlag& cancelled);

/// The sentence for that.
QString noAuthInfo(const QString& queue);

/// The printer has turned down what it was given: the next job asks anew.
void forgetAuthInfo(const cups::Connection& server, const QString& queue);

/// What the queue asks of its users, on the calling worker.
QStringList askedOfUsers(cups::Connection& server, const QString& queue);

} // namespace halvern
