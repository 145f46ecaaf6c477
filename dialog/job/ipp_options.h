// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/option_value.h"

struct _ipp_s;

namespace halvern {

/// Adds an option to a request's job attributes. Known IPP attributes get their own type; everything else
/// goes as text, byte for byte, whatever it looks like. Answers the sentence about a value that is too long.
QString addJobOption(_ipp_s* request, const OptionValue& option);

} // namespace halvern
