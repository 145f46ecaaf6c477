// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace halvern {

/// Our words for what printers call their options ("sides") and the values of these ("two-sided-long-edge")
/// over IPP; for others the keyword's own words. Any thread.
QString ippOptionWords(const QString& attribute);
QString ippWords(const QString& attribute, const QString& value);

} // namespace halvern
