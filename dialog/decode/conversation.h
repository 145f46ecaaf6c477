// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/photo/decoder_wire.h"

namespace halvern {

/// Answers what the dialog asks about one file, until it has no more questions.
void converse(const Descriptor& socket);

} // namespace halvern
