// SPDX-License-Identifier: MIT
#include "platform/foundation/archive/keyed_archive_survey.h"

#include <algorithm>
#include <cmath>

namespace halvern {

using Kind = PropertyListObjectTable::Kind;
using Object = PropertyListObjectTable::Object;

namespace {

// What Qt's containers take on a 64-bit machine, allocation included.
constexpr quint64 kMapBytes = 96;
constexpr quint64 kMapEntryBytes = 96;
constexpr quint64 kListEntryBytes = 32;
constexpr quint64 kBlockBytes = 64;

/// Seconds that a date may be away from 2001: some 280,000 years, well inside what QDateTime can hold.
constexpr double kMaxDateSeconds = 9.0e12;

} // namespace

KeyedArchiveSurvey::KeyedArchiveSurvey(const PropertyListObjectTable& table, KeyedArchive& archive)
    : table_(table), archive_(archive), extents_(table.objectCount())
{
}

void KeyedArchiveSurvey::run()
{
    const std::optional<quint32> root = archive_.root();
    if (!root || archive_.value(*root).kind != ArchivedValue::Kind::dictionary)
        throw CorruptArchive{"its root is not a dictionary"};
    checkGrowth(surveyTarget(*root, 1));
}

/// A few hundred bytes that share what they hold level by level come to millions of values, and everything
/// that compares, shows or describes them walks through all.
void KeyedArchiveSurvey::checkGrowth(const Extent& whole) const
{
    constexpr quint64 growth = KeyedUnarchiver::kMaxGrowth;
    if (whole.values > KeyedUnarchiver::kFreeValues + growth * walked_)
        throw CorruptArchive{"it comes to many times the values that it holds"};
    if (whole.characters > KeyedUnarchiver::kFreeCharacters + growth * quint64(table_.byteCount()))
        throw CorruptArchive{"it comes to many times the text that it holds"};
}

KeyedArchiveSurvey::Extent KeyedArchiveSurvey::surveyReference(quint32 reference, int depth)
{
    const std::optional<quint32> target = archive_.target(reference);
    return target ? surveyTarget(*target, depth) : Extent{};
}

/// `depth` is the level that a container here would have, the root's being 1.
KeyedArchiveSurvey::Extent KeyedArchiveSurvey::surveyTarget(quint32 target, int depth)
{
    if (extents_[target].state == Extent::open)
        throw CorruptArchive{"a collection contains itself"};
    if (extents_[target].state == Extent::unseen) {
        const ArchivedValue value = archive_.value(target);
        extents_[target].state = Extent::open;
        Extent extent;
        switch (value.kind) {
        case ArchivedValue::Kind::nothing:
            break;
        case ArchivedValue::Kind::date:
            if (!(std::abs(table_.number(table_.object(value.content))) <= kMaxDateSeconds))
                throw CorruptArchive{"a date is out of range"};
            [[fallthrough]];
        case ArchivedValue::Kind::plain:
            extent = surveyPlain(value.content);
            break;
        default:
            extent = surveyContainer(value, depth);
        }
        extent.state = Extent::done;
        extents_[target] = extent;
    }
    if (depth - 1 + extents_[target].height > KeyedUnarchiver::kMaxDepth)
        throw CorruptArchive{"it is nested too deeply"};
    return extents_[target];
}

KeyedArchiveSurvey::Extent KeyedArchiveSurvey::surveyContainer(const ArchivedValue& value, int depth)
{
    if (depth > KeyedUnarchiver::kMaxDepth)
        throw CorruptArchive{"it is nested too deeply"};
    const bool dictionary = value.kind == ArchivedValue::Kind::dictionary;
    const Object values = table_.object(value.content);
    const Object keys = dictionary ? table_.object(value.keys) : Object{};
    spend(kMapBytes + quint64(values.count) * (dictionary ? kMapEntryBytes : kListEntryBytes));
    Extent whole;
    for (quint32 i = 0; i < values.count; ++i) {
        if (dictionary)
            include(whole, surveyReference(table_.element(keys, i), depth + 1));
        include(whole, surveyReference(table_.element(values, i), depth + 1));
    }
    whole.height += 1;
    return whole;
}

KeyedArchiveSurvey::Extent KeyedArchiveSurvey::surveyPlain(quint32 index)
{
    const Object object = table_.object(index);
    Extent extent;
    const bool text = object.kind == Kind::utf8String || object.kind == Kind::utf16String;
    if (!text && object.kind != Kind::data)
        return extent;
    extent.characters = object.count;
    spend(kBlockBytes + quint64(object.count) * (text ? 2 : 1));
    return extent;
}

/// Counts an element, whatever it is, and all that it comes to.
void KeyedArchiveSurvey::include(Extent& whole, const Extent& part)
{
    const quint32 values = whole.values + part.values + 1;
    const quint32 characters = whole.characters + part.characters;
    // The elements walked so far are part of the whole tree: too many of them, and it is too large already.
    if (values > KeyedUnarchiver::kMaxValues || ++walked_ > KeyedUnarchiver::kMaxValues)
        throw CorruptArchive{"it comes to more than four million values"};
    // Whatever shows or describes the catalogue writes out what it shares.
    if (characters > KeyedUnarchiver::kMaxCharacters)
        throw CorruptArchive{"its texts come to more than 32 million characters"};
    whole.values = values;
    whole.characters = characters;
    whole.height = std::max(quint32(whole.height), quint32(part.height));
}

void KeyedArchiveSurvey::spend(quint64 bytes)
{
    decodedBytes_ += bytes;
    if (decodedBytes_ > KeyedUnarchiver::kMaxDecodedBytes)
        throw CorruptArchive{"it would take too much memory"};
}

} // namespace halvern
