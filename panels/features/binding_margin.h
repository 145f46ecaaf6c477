// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The binding margin is chosen as the page is seen and stored as the paper lies: on a landscape page the two
/// are a quarter turn apart. Any thread.
namespace halvern::binding {

/// What is stored for a margin chosen on a landscape page, and which margin to show for a stored one. "None"
/// and unknown words pass unchanged. One undoes the other.
QString storedOfShown(const QString& shown);
QString shownOfStored(const QString& stored);

/// Whether a margin can be chosen: "None" always, "Left" and "Right" when the sheet turns over a side edge,
/// all others when it turns over the top or bottom.
bool isOffered(const QString& margin, bool sideEdges);

} // namespace halvern::binding
