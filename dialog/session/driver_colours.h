// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/option_value.h"

namespace halvern {

class PpdModel;

// What a printer's driver does with colours, as far as its PPD and resources/colour-drivers.json tell. Main
// thread only.

/// What tells the driver not to convert colours again.
OptionValues withoutDriverColours(const PpdModel& model);

/// Whether what is chosen comes out in shades of gray: the printer has no colours, or its mode has none.
bool printsGray(const PpdModel& model);

/// Whether the chosen mode is one whose raster is in Adobe RGB.
bool wantsAdobeRgb(const PpdModel& model);

} // namespace halvern
