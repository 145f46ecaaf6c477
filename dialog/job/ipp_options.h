// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/option_value.h"

struct _ipp_s;

namespace halvern {

/// Adds an option to a request's job attributes. Known IPP attributes get their own type; everything else
/// goes as text, byte for byte, whatever it looks like. A collection ("{a=1 b=2}") goes as
/// what it is, or as text. Answers the sentence about a value that is too long.
enum class Collections { whole, asText };
QString addJobOption(_ipp_s* request, const OptionValue& option,
                     Collections collections = Collections::whole);

} // namespace halvern
