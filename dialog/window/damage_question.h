// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QWidget;

namespace halvern {

class DialogSession;

/// Names the files that cannot be read, which are left out, and asks whether the damaged ones print as they
/// are or are left out too; settles that with the
/// session, and then calls `go`, unless the user stays in the dialog, or nothing is left to print. Returns at
/// once. Main thread only.
void askAboutDamagedPhotos(QWidget* parent, DialogSession& session, const std::function<void()>& go);

} // namespace halvern
