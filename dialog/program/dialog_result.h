// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace halvern {

class DialogSession;
class PrintDialog;

/// What was chosen in a closed dialog and what became of it, as a JSON object in a line; docs/portal.md
/// describes it. Main thread only.
QByteArray dialogResult(DialogSession& session, PrintDialog& dialog, int exitStatus);

} // namespace halvern
