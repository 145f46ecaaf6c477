// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QWidget;

namespace halvern {

class DialogSession;

/// Asks whether the session's damaged photos print as they are or are left out, settles that with the
/// session, and then calls `go`, unless the user stays in the dialog, or nothing is left to print. Returns at
/// once. Main thread only.
void askAboutDamagedPhotos(QWidget* parent, DialogSession& session, const std::function<void()>& go);

} // namespace halvern
