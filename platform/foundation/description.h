// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QVariant>

namespace HALVERN_EXPORT halvern {

/// A value as log lines spell it, on one line: "{key = value; ...}" with sorted keys for a dictionary,
/// "(value, ...)" for a list, "(null)" for nothing. Texts inside collections are quoted where they need it,
/// so that different collections never read the same. Any thread.
QString descriptionOf(const QVariant& value);

/// Whether it is a whole or real number, or a yes or no, which counts as one; not a text. Any thread.
bool isNumber(const QVariant& value);

/// Whether two values are the same all the way down. Numbers that are equal are the same whatever their
/// type; unlike QVariant's own comparison it tells the number 3000 from the text "3000". Any thread.
bool isSameValue(const QVariant& left, const QVariant& right);

} // namespace halvern
