// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/loaded_trays.h"

#include <optional>

namespace halvern {

/// "A4", "10 × 15 cm", "610 mm wide". On the model's thread.
QString paperInWords(const PpdModel& model, const TrayPaper& paper);

/// The chosen paper is not where it would be taken from: another size is there, or another kind.
struct NotLoaded {
    QString shortly;  ///< "not loaded: needs A4 in the tray"
    QString sentence; ///< the same with what is loaded
    int other = -1;   ///< the tray that has it, or, if none has, the first one
    QString otherText;
};

/// Nothing if the chosen paper is loaded, or if nobody knows. On the model's thread.
std::optional<NotLoaded> findNotLoaded(const PpdModel& model, const QList<TrayPaper>& trays);

} // namespace halvern
