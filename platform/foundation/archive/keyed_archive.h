// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/archive/property_list_object_table.h"

#include <optional>
#include <vector>

namespace halvern {

/// An archived value, not decoded: what it is and which objects of the table hold it.
struct ArchivedValue {
    enum class Kind : quint8 { nothing, plain, date, list, dictionary };
    Kind kind = Kind::nothing;
    /// The object that holds a plain value or a date's seconds; the array of a list's elements or a
    /// dictionary's values.
    quint32 content = 0;
    /// The array of a dictionary's keys.
    quint32 keys = 0;
};

/// The meaning of an object table as a keyed archive: its root, its references, its classes. One thread at a
/// time. Every operation throws CorruptArchive where the archive breaks its own rules; an object of an
/// unknown class is read as its nearest known ancestor, or is nothing, but no failure, if it does not keep
/// its content as that one does.
class KeyedArchive {
public:
    /// `table` outlives the archive.
    explicit KeyedArchive(const PropertyListObjectTable& table);

    /// The table's object for the archive's root. Nothing if the root is nil.
    std::optional<quint32> root() { return target(root_); }

    /// Follows a reference to the object that it means, nothing for nil. Whatever an archived object holds,
    /// it holds by reference: an object that is none is corrupt.
    std::optional<quint32> target(quint32 reference) const;

    /// What the object, an answer of target(), stands for. Takes time in proportion to the object's own
    /// size, so callers remember what they have seen.
    ArchivedValue value(quint32 target);

private:
    enum class Meaning : quint8 { unseen, unknown, dictionary, list, string, data, date, number };

    struct Class {
        Meaning meaning = Meaning::unseen;
        /// Whether the meaning is an ancestor's.
        bool inherited = false;
    };

    struct Reading {
        ArchivedValue value;
        /// Why the fields are not what the class keeps its content in, null if they are.
        const char* fault = nullptr;
    };

    Meaning meaningOfName(const PropertyListObjectTable::Object& name) const;
    Class classOf(quint32 reference);
    Class readClass(const PropertyListObjectTable::Object& entry) const;
    ArchivedValue instance(const PropertyListObjectTable::Object& fields);
    Reading readAs(Meaning meaning, const PropertyListObjectTable::Object& fields) const;
    Reading dictionaryOf(const PropertyListObjectTable::Object& fields) const;
    Reading listOf(const PropertyListObjectTable::Object& fields) const;
    Reading scalarOf(const PropertyListObjectTable::Object& fields, Meaning meaning) const;
    std::optional<quint32> contentOf(quint32 field) const;
    std::optional<quint32> arrayField(const PropertyListObjectTable::Object& fields,
                                      QByteArrayView key) const;
    quint32 required(const PropertyListObjectTable::Object& fields, QByteArrayView key,
                     PropertyListObjectTable::Kind kind, const char* why) const;

    const PropertyListObjectTable& table_;
    PropertyListObjectTable::Object objects_;
    quint32 root_ = 0;
    std::vector<Class> classes_;
};

} // namespace halvern
