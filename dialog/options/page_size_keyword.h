// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace halvern {

/// The option of a PPD that names the paper size.
inline const QString kPageSize = QStringLiteral("PageSize");

} // namespace halvern
