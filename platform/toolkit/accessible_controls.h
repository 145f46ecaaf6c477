// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

namespace HALVERN_EXPORT halvern {

/// Has Qt tell assistive technology what our own controls are: a DecimalSlider's and a Stepper's real value,
/// range and step, a Matrix and a ChoiceGroup as groups. Once, on the main thread, before the first window.
void installAccessibleControls();

} // namespace halvern
