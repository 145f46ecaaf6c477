// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace halvern {

/// The option of a PPD that names the paper size.
inline const QString kPageSize = QStringLiteral("PageSize");

/// The option of our printers that tells the roll from single sheets.
inline const QString kPaperFeed = QStringLiteral("PaperFeed");

} // namespace halvern
