// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QString>

#include <memory>

class QWidget;

namespace HALVERN_EXPORT halvern {

class Bundle;

/// Loads the layout file Resources/<name>.ui of the bundle. Knows our own controls (Matrix, DecimalSlider,
/// Stepper) by their plain class names. Null if the file is missing or malformed; `why`, if given, then holds
/// the reason. The caller owns the widget. Main thread only.
std::unique_ptr<QWidget> loadLayout(const Bundle& bundle, const QString& name, QString* why = nullptr);

} // namespace halvern
