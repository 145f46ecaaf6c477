// SPDX-License-Identifier: MIT
#pragma once

#include <QVariantMap>

class QIODevice;

namespace halvern {

/// Writes a catalogue as JSON, one key a line within each map, as it goes: values that the catalogue shares
/// cost no memory. Whole numbers are written in full; data as base64, dates as ISO 8601, numbers that JSON
/// cannot hold as null. `device` is open for writing; look at its state for errors. Any thread.
void writeCatalogueJson(const QVariantMap& catalogue, QIODevice& device);

} // namespace halvern
