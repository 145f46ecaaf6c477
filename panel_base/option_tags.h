// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <optional>
#include <span>

namespace halvern {

/// An option of a panel with the tag of its control. A panel lists its options once, in the order in which
/// they are saved.
struct TaggedOption {
    const char* key;
    int tag; ///< kNoTag: no control shows it
};

inline constexpr int kNoTag = -1;

QStringList keysOf(std::span<const TaggedOption> options);

/// The option of a control's tag; nothing if there is none.
std::optional<QString> keyForTag(std::span<const TaggedOption> options, int tag);

} // namespace halvern
