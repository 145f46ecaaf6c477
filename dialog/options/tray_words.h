// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace halvern {

/// Our words for what printers call their trays and papers ("by-pass-tray", "photographic-glossy"); for
/// others the keyword's own words. Any thread.
QString traySourceWords(const QString& source);
QString mediaTypeWords(const QString& type);

} // namespace halvern
