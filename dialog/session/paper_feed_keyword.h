// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace halvern {

/// The option of our printers that tells the roll from single sheets.
inline const QString kPaperFeedKeyword = QStringLiteral("PaperFeed");

} // namespace halvern
