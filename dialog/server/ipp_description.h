// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

struct _ipp_s;

namespace halvern {

/// What a printer without a PPD says of itself over IPP, as the text of a PPD: so its options have the same
/// pages, conflicts, presets and summary as all others. The words that its jobs use instead are in it, too
/// (dialog/options/ipp_twins.h). What a printer says is bounded and cleaned. Any thread.

/// Whether the attributes are enough to print with: papers, and a format that we write.
bool isDescribed(_ipp_s* attributes);

/// The text of the PPD; nothing if the printer names no paper. `isHandedOn`: its queue does not know these
/// options itself.
std::optional<QByteArray> describedAsPpd(_ipp_s* attributes, bool isHandedOn);

} // namespace halvern
