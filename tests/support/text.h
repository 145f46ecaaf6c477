// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace halvern {

/// The text, from UTF-8.
inline QString q(const char* text)
{
    return QString::fromUtf8(text);
}

} // namespace halvern
