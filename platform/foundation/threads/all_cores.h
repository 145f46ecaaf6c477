// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QtGlobal>

#include <functional>

namespace HALVERN_EXPORT halvern {

/// Does work on `count` things on all of the computer's cores, in shares of at least `least` things, and
/// waits for all of it. `work` gets the first thing of a share and how many; it is called from several
/// threads at once, the calling one among them. Where the system has no thread left, the calling one does it
/// all.
void onAllCores(qsizetype count, qsizetype least, const std::function<void(qsizetype, qsizetype)>& work);

} // namespace halvern
