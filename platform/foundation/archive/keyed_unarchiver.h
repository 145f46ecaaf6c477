// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QByteArray>
#include <QString>
#include <QVariantMap>

#include <optional>

namespace HALVERN_EXPORT halvern {

/// Decodes keyed archives, binary or XML, that come from a printer and may hold anything.
///
/// All or nothing: a broken rule anywhere on the way from the root makes the whole archive corrupt. A file is
/// at most 32 MiB and four million objects; the decoded tree at most 64 levels, four million values and
/// kMaxCharacters, with each shared one counted wherever it appears, and kMaxDecodedBytes. Beyond a small
/// amount that tree is at most kMaxGrowth times what the file holds. The archive is surveyed first and
/// decoded only if it passes, so that a hostile one costs little more than its own size. Any thread; never
/// throws.
class KeyedUnarchiver {
public:
    static constexpr int kMaxDepth = 64;
    static constexpr quint32 kMaxValues = 4'000'000;

    /// Characters of texts and bytes of data. 100,000 papers have some ten million.
    static constexpr quint32 kMaxCharacters = 32 * 1024 * 1024;

    /// How much larger than the file the tree may be by sharing: values as against the elements of its
    /// collections, characters as against its bytes. Records that share their keys come to four times.
    static constexpr quint32 kMaxGrowth = 16;
    static constexpr quint32 kFreeValues = 4'000;
    static constexpr quint32 kFreeCharacters = 64 * 1024;

    /// An estimate of the memory that the decoded values take.
    static constexpr quint64 kMaxDecodedBytes = 128 * 1024 * 1024;

    struct Result {
        /// The root dictionary, nothing if the archive is corrupt.
        std::optional<QVariantMap> root;
        /// "corrupt: " and why; empty on success.
        QString failure;
    };

    /// Decodes the archive whose root is a dictionary. Its values are QString, qint64 (quint64 for what
    /// was stored as unsigned), double, bool, QByteArray, QDateTime (UTC), QVariantList (arrays and sets)
    /// and QVariantMap. Values of unknown classes (unless their content is that of a known ancestor),
    /// null values, and entries whose key is no string are left out; of entries with the same key the last
    /// one stays. Values that the archive shares are shared.
    static Result unarchiveDictionary(const QByteArray& archive);
};

} // namespace halvern
