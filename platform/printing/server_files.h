// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QByteArray>
#include <QString>

/// What is kept of print servers from one run to the next, a file each in the user's folder. All of it reads
/// or writes there; blocks; any thread.
namespace HALVERN_EXPORT halvern {
namespace cups {

QString serversFolder();

/// The file of a host's, without its ending.
QByteArray serverFileName(const QString& host);

/// The name under which the host has the user's jobs, where it wanted one for them; empty if none is known,
/// or the user has set another one (CUPS_USER).
QString keptJobOwner(const QString& host);

/// Keeps that name, without any password. What cannot be written is forgotten with the process.
void keepJobOwner(const QString& host, const QString& user);

} // namespace cups
} // namespace halvern
