// SPDX-License-Identifier: MIT
#include "panel_base/option_tags.h"

namespace halvern {

QStringList keysOf(std::span<const TaggedOption> options)
{
    QStringList keys;
    for (const TaggedOption& option : options)
        keys.append(QString::fromLatin1(option.key));
    return keys;
}

std::optional<QString> keyForTag(std::span<const TaggedOption> options, int tag)
{
    for (const TaggedOption& option : options) {
        if (option.tag == tag && tag != kNoTag)
            return QString::fromLatin1(option.key);
    }
    return std::nullopt;
}

} // namespace halvern
