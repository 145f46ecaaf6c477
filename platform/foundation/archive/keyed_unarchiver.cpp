// SPDX-License-Identifier: MIT
#include "platform/foundation/archive/keyed_unarchiver.h"

#include "platform/foundation/archive/keyed_archive.h"
#include "platform/foundation/archive/keyed_archive_survey.h"
#include "platform/foundation/archive/xml_property_list.h"

#include <QDateTime>

#include <cmath>
#include <new>
#include <vector>

namespace halvern {

using Kind = PropertyListObjectTable::Kind;
using Object = PropertyListObjectTable::Object;

namespace {

/// Decodes a surveyed archive. Each text, data and container is made once and shared from then on.
class ArchiveDecoder {
public:
    ArchiveDecoder(const PropertyListObjectTable& table, KeyedArchive& archive)
        : table_(table), archive_(archive), slots_(table.objectCount(), 0)
    {
    }

    QVariantMap root() { return decodeTarget(*archive_.root()).toMap(); }

private:
    QVariant decodeReference(quint32 reference)
    {
        const std::optional<quint32> target = archive_.target(reference);
        return target ? decodeTarget(*target) : QVariant();
    }

    QVariant decodeTarget(quint32 target);
    QVariant decodePlain(quint32 index);
    QVariant decodeDate(const Object& seconds) const;
    QVariant decodeList(const ArchivedValue& value);
    QVariant decodeDictionary(const ArchivedValue& value);

    const QVariant* remembered(quint32 index) const
    {
        return slots_[index] ? &decoded_[slots_[index] - 1] : nullptr;
    }

    void remember(quint32 index, const QVariant& value)
    {
        decoded_.push_back(value);
        slots_[index] = quint32(decoded_.size());
    }

    const PropertyListObjectTable& table_;
    KeyedArchive& archive_;
    /// For each object one more than its place in decoded_, 0 for those not there.
    std::vector<quint32> slots_;
    std::vector<QVariant> decoded_;
};

QVariant ArchiveDecoder::decodeTarget(quint32 target)
{
    if (const QVariant* known = remembered(target))
        return *known;
    const ArchivedValue value = archive_.value(target);
    QVariant result;
    switch (value.kind) {
    case ArchivedValue::Kind::plain:
        result = decodePlain(value.content);
        break;
    case ArchivedValue::Kind::date:
        result = decodeDate(table_.object(value.content));
        break;
    case ArchivedValue::Kind::list:
        result = decodeList(value);
        break;
    case ArchivedValue::Kind::dictionary:
        result = decodeDictionary(value);
        break;
    case ArchivedValue::Kind::nothing:
        break;
    }
    // Instances are remembered whatever they are: looking through their fields again could take long.
    if (!slots_[target] && table_.object(target).kind == Kind::dictionary)
        remember(target, result);
    return result;
}

QVariant ArchiveDecoder::decodePlain(quint32 index)
{
    if (const QVariant* known = remembered(index))
        return *known;
    const Object object = table_.object(index);
    QVariant result;
    switch (object.kind) {
    case Kind::boolean:
        return object.count != 0;
    case Kind::integer:
        if (table_.isUnsigned(object))
            return quint64(table_.integerBits(object));
        return qint64(table_.integerBits(object));
    case Kind::real:
        return table_.number(object);
    case Kind::data:
        result = table_.bytes(object).toByteArray();
        break;
    default:
        result = table_.string(object);
    }
    remember(index, result);
    return result;
}

QVariant ArchiveDecoder::decodeDate(const Object& seconds) const
{
    const QDateTime reference(QDate(2001, 1, 1), QTime(0, 0), Qt::UTC);
    return reference.addMSecs(std::llround(table_.number(seconds) * 1000.0));
}

QVariant ArchiveDecoder::decodeList(const ArchivedValue& value)
{
    const Object elements = table_.object(value.content);
    QVariantList list;
    list.reserve(qsizetype(elements.count));
    for (quint32 i = 0; i < elements.count; ++i) {
        QVariant element = decodeReference(table_.element(elements, i));
        if (element.isValid())
            list.append(std::move(element));
    }
    return list;
}

QVariant ArchiveDecoder::decodeDictionary(const ArchivedValue& value)
{
    const Object keys = table_.object(value.keys);
    const Object values = table_.object(value.content);
    QVariantMap map;
    for (quint32 i = 0; i < keys.count; ++i) {
        const QVariant key = decodeReference(table_.element(keys, i));
        QVariant entry = decodeReference(table_.element(values, i));
        if (key.typeId() == QMetaType::QString && entry.isValid())
            map.insert(key.toString(), std::move(entry));
    }
    return map;
}

QVariantMap decode(const QByteArray& archive)
{
    if (archive.size() > kMaxArchiveBytes)
        throw CorruptArchive{"it is larger than 32 MiB"};
    const bool xml = !PropertyListObjectTable::hasMagic(archive) && looksLikeXml(archive);
    if (!xml && !PropertyListObjectTable::hasMagic(archive))
        throw CorruptArchive{"it is no property list"};
    const PropertyListObjectTable table(xml ? binaryFromXmlPropertyList(archive) : archive);
    KeyedArchive keyed(table);
    KeyedArchiveSurvey(table, keyed).run();
    return ArchiveDecoder(table, keyed).root();
}

} // namespace

KeyedUnarchiver::Result KeyedUnarchiver::unarchiveDictionary(const QByteArray& archive)
{
    try {
        // The reason takes memory too.
        try {
            return {decode(archive), QString()};
        } catch (const CorruptArchive& corrupt) {
            return {std::nullopt, QStringLiteral("corrupt: ") + QString::fromLatin1(corrupt.why)};
        }
    } catch (const std::bad_alloc&) {
        return {std::nullopt, QStringLiteral("corrupt: there is not enough memory to read it")};
    }
}

} // namespace halvern
