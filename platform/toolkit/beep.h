// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <functional>

namespace HALVERN_EXPORT halvern {

/// The system's alert sound. Main thread only.
void beep();

/// Replaces the sound, for tests; an empty function brings the sound back.
void setBeepHandler(std::function<void()> handler);

} // namespace halvern
