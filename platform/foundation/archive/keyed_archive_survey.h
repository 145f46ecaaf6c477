// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/archive/keyed_archive.h"
#include "platform/foundation/archive/keyed_unarchiver.h"

#include <vector>

namespace halvern {

/// Walks a keyed archive from its root as decoding would, each object once, and holds it to the limits of
/// KeyedUnarchiver: no container inside itself, depth, expanded number of values and characters, growth,
/// memory. Takes eight bytes an object.
class KeyedArchiveSurvey {
public:
    KeyedArchiveSurvey(const PropertyListObjectTable& table, KeyedArchive& archive);

    /// Throws CorruptArchive if anything reachable from the root is wrong, or the root is no dictionary.
    void run();

private:
    /// What a value comes to when all that it shares is written out.
    struct Extent {
        enum State : quint8 { unseen, open, done };

        /// Characters of texts, bytes of data.
        quint32 characters = 0;
        quint32 values : 23 = 0;
        /// Levels of containers, itself included.
        quint32 height : 7 = 0;
        quint32 state : 2 = unseen;
    };

    static_assert(sizeof(Extent) == 8);
    static_assert(KeyedUnarchiver::kMaxValues < 1u << 23 && KeyedUnarchiver::kMaxDepth + 1 < 1 << 7);

    Extent surveyReference(quint32 reference, int depth);
    Extent surveyTarget(quint32 target, int depth);
    Extent surveyContainer(const ArchivedValue& value, int depth);
    Extent surveyPlain(quint32 object);
    void checkGrowth(const Extent& whole) const;
    void include(Extent& whole, const Extent& part);
    void spend(quint64 bytes);

    const PropertyListObjectTable& table_;
    KeyedArchive& archive_;
    std::vector<Extent> extents_;
    quint64 decodedBytes_ = 0;
    quint32 walked_ = 0;
};

} // namespace halvern
