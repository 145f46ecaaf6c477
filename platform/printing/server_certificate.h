// SPDX-License-Identifier: MIT
#pragma once

#include "platform/printing/exchange_watch.h"

#include <QString>

struct _http_s;

/// The certificates of the print servers, as they were when they were first seen: in the user's folder, and
/// for the life of the process where that cannot be written. All of it reads or writes there; blocks; any
/// thread.
namespace halvern::cups {

/// Whether an encrypted connection leads to the server that `host` has been so far. A server that was never
/// seen is trusted as client.conf says (by default: yes), and its certificate is kept; another one than it
/// had, or one in the place of what cannot be read any more, is a question to the user (cups::Access).
bool isTrustedServer(_http_s* http, const QString& host, const CancelFlag& cancelled);

/// Whether `host` has shown a certificate before.
bool hasCertificate(const QString& host);

/// Whether what answers as `host` is to be talked to although it does not encrypt any more: a question to the
/// user. If so, its certificate is forgotten.
bool isTrustedOpenly(const QString& host, const CancelFlag& cancelled);

} // namespace halvern::cups
