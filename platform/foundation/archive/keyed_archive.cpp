// SPDX-License-Identifier: MIT
#include "platform/foundation/archive/keyed_archive.h"

#include <QString>

#include <algorithm>
#include <array>

namespace halvern {

using Kind = PropertyListObjectTable::Kind;
using Object = PropertyListObjectTable::Object;

namespace {

/// How many ancestors of a class are looked at.
constexpr quint32 kMaxClassNames = 16;

/// What each keyed archive says of itself.
constexpr char kArchiver[] = "NSKeyedArchiver";
constexpr quint64 kVersion = 100'000;

constexpr char kNoElements[] = "a collection lacks its elements";

} // namespace

KeyedArchive::KeyedArchive(const PropertyListObjectTable& table)
    : table_(table), classes_(table.objectCount())
{
    const Object archive = table.object(table.topObject());
    if (archive.kind != Kind::dictionary)
        throw CorruptArchive{"it is not a keyed archive"};
    const std::optional<quint32> archiver = table.valueForKey(archive, "$archiver");
    if (!archiver || !table.isText(table.object(*archiver), kArchiver))
        throw CorruptArchive{"it does not say that it is a keyed archive"};
    const char* why = "it is of an unknown version";
    if (table.integerBits(table.object(required(archive, "$version", Kind::integer, why))) != kVersion)
        throw CorruptArchive{why};
    why = "it has no list of objects";
    objects_ = table.object(required(archive, "$objects", Kind::array, why));
    why = "it does not name its root";
    const Object top = table.object(required(archive, "$top", Kind::dictionary, why));
    root_ = required(top, "root", Kind::uid, why);
}

quint32 KeyedArchive::required(const Object& fields, QByteArrayView key, Kind kind, const char* why) const
{
    const std::optional<quint32> found = table_.valueForKey(fields, key);
    if (!found || table_.object(*found).kind != kind)
        throw CorruptArchive{why};
    return *found;
}

std::optional<quint32> KeyedArchive::target(quint32 reference) const
{
    const Object object = table_.object(reference);
    if (object.kind != Kind::uid)
        throw CorruptArchive{"an archived object holds something that is no reference"};
    const quint64 number = table_.integerBits(object);
    if (number >= objects_.count)
        throw CorruptArchive{"a reference points to no archived object"};
    if (number == 0) // where each archive keeps its "$null"
        return std::nullopt;
    const quint32 found = table_.element(objects_, quint32(number));
    if (table_.object(found).kind == Kind::uid)
        throw CorruptArchive{"a reference points to a reference"};
    return found;
}

ArchivedValue KeyedArchive::value(quint32 target)
{
    const Object object = table_.object(target);
    switch (object.kind) {
    case Kind::null:
        return {};
    case Kind::date:
        return {ArchivedValue::Kind::date, target, 0};
    case Kind::dictionary:
        return instance(object);
    case Kind::array:
    case Kind::set:
        throw CorruptArchive{"an archived object has no class"};
    default:
        return {ArchivedValue::Kind::plain, target, 0};
    }
}

ArchivedValue KeyedArchive::instance(const Object& fields)
{
    const std::optional<quint32> reference = table_.valueForKey(fields, "$class");
    if (!reference)
        throw CorruptArchive{"an archived object has no class"};
    const Class type = classOf(*reference);
    const Reading reading = readAs(type.meaning, fields);
    // A class of its own may keep its content in fields of its own, whatever it descends from.
    if (reading.fault && !type.inherited)
        throw CorruptArchive{reading.fault};
    return reading.fault ? ArchivedValue{} : reading.value;
}

KeyedArchive::Reading KeyedArchive::readAs(Meaning meaning, const Object& fields) const
{
    switch (meaning) {
    case Meaning::dictionary:
        return dictionaryOf(fields);
    case Meaning::list:
        return listOf(fields);
    case Meaning::string:
    case Meaning::data:
    case Meaning::date:
    case Meaning::number:
        return scalarOf(fields, meaning);
    default:
        return {};
    }
}

KeyedArchive::Reading KeyedArchive::dictionaryOf(const Object& fields) const
{
    const std::optional<quint32> keys = arrayField(fields, "NS.keys");
    const std::optional<quint32> values = arrayField(fields, "NS.objects");
    if (!keys || !values)
        return {{}, kNoElements};
    if (table_.object(*keys).count != table_.object(*values).count)
        return {{}, "a dictionary has not as many keys as values"};
    return {{ArchivedValue::Kind::dictionary, *values, *keys}};
}

KeyedArchive::Reading KeyedArchive::listOf(const Object& fields) const
{
    const std::optional<quint32> elements = arrayField(fields, "NS.objects");
    if (!elements)
        return {{}, kNoElements};
    return {{ArchivedValue::Kind::list, *elements, 0}};
}

/// A single value is kept in its field, or referred to from there.
std::optional<quint32> KeyedArchive::contentOf(quint32 field) const
{
    return table_.object(field).kind == Kind::uid ? target(field) : field;
}

std::optional<quint32> KeyedArchive::arrayField(const Object& fields, QByteArrayView key) const
{
    const std::optional<quint32> found = table_.valueForKey(fields, key);
    return found && table_.object(*found).kind == Kind::array ? found : std::nullopt;
}

/// Reads the one field that an instance of a class with a single value keeps it in.
KeyedArchive::Reading KeyedArchive::scalarOf(const Object& fields, Meaning meaning) const
{
    struct Field {
        Meaning meaning;
        const char* key;
        std::array<Kind, 2> kinds;
    };

    static constexpr std::array kFields{
        Field{Meaning::string, "NS.string", {Kind::utf8String, Kind::utf16String}},
        Field{Meaning::data, "NS.data", {Kind::data, Kind::data}},
        Field{Meaning::date, "NS.time", {Kind::real, Kind::integer}},
        Field{Meaning::number, "NS.intval", {Kind::integer, Kind::integer}},
        Field{Meaning::number, "NS.dblval", {Kind::real, Kind::real}},
        Field{Meaning::number, "NS.boolval", {Kind::boolean, Kind::boolean}},
    };
    for (const Field& field : kFields) {
        const std::optional<quint32> found =
            field.meaning == meaning ? table_.valueForKey(fields, field.key) : std::nullopt;
        if (!found)
            continue;
        const std::optional<quint32> content = contentOf(*found);
        if (!content || std::ranges::count(field.kinds, table_.object(*content).kind) == 0)
            return {{}, "a value is not of its class"};
        const bool date = meaning == Meaning::date;
        return {{date ? ArchivedValue::Kind::date : ArchivedValue::Kind::plain, *content, 0}};
    }
    return {{}, "a value of a known class is missing"};
}

KeyedArchive::Class KeyedArchive::classOf(quint32 reference)
{
    if (table_.object(reference).kind != Kind::uid)
        throw CorruptArchive{"an archived object has no class"};
    const std::optional<quint32> entry = target(reference);
    if (!entry || table_.object(*entry).kind != Kind::dictionary)
        throw CorruptArchive{"an archived object's class does not exist"};
    Class& known = classes_[*entry];
    if (known.meaning == Meaning::unseen)
        known = readClass(table_.object(*entry));
    return known;
}

/// The class itself if we know it, else the nearest ancestor that we know.
KeyedArchive::Class KeyedArchive::readClass(const Object& entry) const
{
    const std::optional<quint32> name = table_.valueForKey(entry, "$classname");
    const Object text = name ? table_.object(*name) : Object{};
    if (text.kind != Kind::utf8String && text.kind != Kind::utf16String)
        throw CorruptArchive{"a class has no name"};
    Class type{meaningOfName(text), false};
    const std::optional<quint32> ancestors = table_.valueForKey(entry, "$classes");
    if (type.meaning != Meaning::unknown || !ancestors || table_.object(*ancestors).kind != Kind::array)
        return type;
    type.inherited = true;
    const Object names = table_.object(*ancestors);
    for (quint32 i = 0; type.meaning == Meaning::unknown && i < std::min(names.count, kMaxClassNames); ++i)
        type.meaning = meaningOfName(table_.object(table_.element(names, i)));
    return type;
}

KeyedArchive::Meaning KeyedArchive::meaningOfName(const Object& name) const
{
    struct Name {
        const char* text;
        Meaning meaning;
    };

    static constexpr std::array kNames{
        Name{"NSDictionary", Meaning::dictionary},
        Name{"NSMutableDictionary", Meaning::dictionary},
        Name{"NSArray", Meaning::list},
        Name{"NSMutableArray", Meaning::list},
        Name{"NSSet", Meaning::list},
        Name{"NSMutableSet", Meaning::list},
        Name{"NSString", Meaning::string},
        Name{"NSMutableString", Meaning::string},
        Name{"NSData", Meaning::data},
        Name{"NSMutableData", Meaning::data},
        Name{"NSDate", Meaning::date},
        Name{"NSNumber", Meaning::number},
    };
    for (const Name& known : kNames) {
        if (table_.isText(name, known.text))
            return known.meaning;
    }
    return Meaning::unknown;
}

} // namespace halvern
