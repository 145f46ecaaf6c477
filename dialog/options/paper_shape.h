// SPDX-License-Identifier: MIT
#pragma once

#include <QSizeF>

struct ppd_size_s;

namespace halvern {

/// A size with its short side across. In the unit that it comes in.
QSizeF upright(const QSizeF& size);

/// Whether a printer prints up to all four edges of this paper, by what its PPD says.
bool isWithoutMargins(const ppd_size_s& size);

} // namespace halvern
