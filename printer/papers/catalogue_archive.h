// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QVariantMap>

namespace halvern {

/// Packs a catalogue as a printer does: a keyed archive in a binary property list. Values are maps, lists,
/// texts, numbers, booleans and data; equal texts and numbers are stored once. Values of other types are left
/// out. Any thread.
QByteArray archiveOfCatalogue(const QVariantMap& catalogue);

} // namespace halvern
