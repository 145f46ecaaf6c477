// SPDX-License-Identifier: MIT
#pragma once

#include "platform/printing/exchange_watch.h"

#include <QString>

struct _http_s;

namespace halvern::cups {

/// Whether an encrypted connection leads to the server that `host` has been so far. A server that was never
/// seen is trusted as client.conf says (by default: yes), and its certificate is kept; another one than it
/// had is a question to the user (cups::Access). Reads and writes the user's folder; blocks; any thread.
bool isTrustedServer(_http_s* http, const QString& host, const CancelFlag& cancelled);

} // namespace halvern::cups
