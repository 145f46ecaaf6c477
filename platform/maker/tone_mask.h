// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QtGlobal>

/// Which tones the loaded papers allow, as a mask of which only the low eight bits count. Any thread.
namespace HALVERN_EXPORT halvern {
namespace tone {

constexpr bool allowsAny(quint32 mask)
{
    return quint8(mask) != 0;
}

/// Item 0 is always allowed; bit k allows item k + 1. From item 9 on nothing is.
constexpr bool allowsItem(quint32 mask, int index)
{
    if (index == 0)
        return true;
    return index >= 1 && index <= 32 && quint8(mask & (1U << (index - 1))) != 0;
}

} // namespace tone
} // namespace halvern
