// SPDX-License-Identifier: MIT
#pragma once

#include "platform/printing/access.h"

#include <QStringList>

namespace halvern {

/// The sentences of the questions about getting in, for a window as for a terminal. Any thread.

/// Who wants a name and a password, and whether the last ones were wrong.
QString whoAsks(const cups::LoginQuestion& question);

/// That others could read the password on its way.
QString openWayWarning(const cups::Place& place);

/// What is wrong with a certificate, and what both are, a sentence each.
QStringList certificateWords(const cups::CertificateQuestion& question);

} // namespace halvern
