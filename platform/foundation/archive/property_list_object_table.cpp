// SPDX-License-Identifier: MIT
#include "platform/foundation/archive/property_list_object_table.h"

#include <QString>
#include <QUtf8StringView>

#include <bit>
#include <utility>

namespace halvern {

namespace {

constexpr char kMagic[] = "bplist00";
constexpr quint64 kMagicSize = 8;
constexpr quint64 kTrailerSize = 32;

constexpr quint8 kCountFollows = 0x0F;

PropertyListObjectTable::Kind kindOfMarker(quint8 marker)
{
    using Kind = PropertyListObjectTable::Kind;
    switch (marker >> 4) {
    case 0x0:
        if (marker == 0x00)
            return Kind::null;
        if (marker == 0x08 || marker == 0x09)
            return Kind::boolean;
        break;
    case 0x1:
        if (marker <= 0x14)
            return Kind::integer;
        break;
    case 0x2:
        if (marker == 0x22 || marker == 0x23)
            return Kind::real;
        break;
    case 0x3:
        if (marker == 0x33)
            return Kind::date;
        break;
    case 0x4:
        return Kind::data;
    case 0x5: // meant for ASCII; writers that put UTF-8 here are understood
    case 0x7:
        return Kind::utf8String;
    case 0x6:
        return Kind::utf16String;
    case 0x8:
        if (marker <= 0x87)
            return Kind::uid;
        break;
    case 0xA:
        return Kind::array;
    case 0xC:
        return Kind::set;
    case 0xD:
        return Kind::dictionary;
    }
    throw CorruptArchive{"an object is of no known kind"};
}

} // namespace

PropertyListObjectTable::PropertyListObjectTable(QByteArray bytes) : bytes_(std::move(bytes))
{
    readTrailer();
    checkObjects();
}

bool PropertyListObjectTable::hasMagic(QByteArrayView bytes)
{
    return bytes.startsWith(QByteArrayView(kMagic, kMagicSize));
}

void PropertyListObjectTable::readTrailer()
{
    if (bytes_.size() > kMaxArchiveBytes)
        throw CorruptArchive{"it is larger than 32 MiB"};
    const quint64 size = quint64(bytes_.size());
    if (!hasMagic(bytes_) || size < kMagicSize + kTrailerSize)
        throw CorruptArchive{"it is too short for a property list"};
    const quint64 trailer = size - kTrailerSize;
    offsetSize_ = quint8(bigEndian(trailer + 6, 1));
    referenceSize_ = quint8(bigEndian(trailer + 7, 1));
    const quint64 count = bigEndian(trailer + 8, 8);
    const quint64 top = bigEndian(trailer + 16, 8);
    const quint64 table = bigEndian(trailer + 24, 8);
    if (offsetSize_ < 1 || offsetSize_ > 8 || referenceSize_ < 1 || referenceSize_ > 8)
        throw CorruptArchive{"its trailer has impossible sizes, as if the end were missing"};
    if (count > kMaxArchiveObjects)
        throw CorruptArchive{"it has more than four million objects"};
    if (top >= count)
        throw CorruptArchive{"its top object does not exist"};
    if (table < kMagicSize || table > trailer || count * offsetSize_ > trailer - table)
        throw CorruptArchive{"its offset table does not fit into the file"};
    objectCount_ = quint32(count);
    topObject_ = quint32(top);
    offsetTable_ = quint32(table);
}

void PropertyListObjectTable::checkObjects() const
{
    // Objects that do not overlap fill the space before the offset table at most once. Holding them to that
    // keeps this loop, and every later walk over an object's elements, in proportion to the file.
    quint64 room = offsetTable_ - kMagicSize;
    for (quint32 index = 0; index < objectCount_; ++index) {
        const Object object = this->object(index);
        const quint64 size = payloadSize(object) + 1;
        if (size > room)
            throw CorruptArchive{"its objects overlap"};
        room -= size;
        checkPayload(object);
    }
}

PropertyListObjectTable::Object PropertyListObjectTable::object(quint32 index) const
{
    if (++looks_ > kMaxLooksPerByte * quint64(bytes_.size()))
        throw CorruptArchive{"it takes more steps to read than any honest one"};
    const quint64 offset = bigEndian(offsetTable_ + quint64(index) * offsetSize_, offsetSize_);
    if (offset < kMagicSize || offset >= offsetTable_)
        throw CorruptArchive{"an object lies outside the file"};
    const quint8 marker = quint8(bytes_.at(qsizetype(offset)));
    const quint8 low = marker & 0x0F;
    Object object{kindOfMarker(marker), 0, 0};
    quint64 start = offset + 1;
    quint64 count = low;
    switch (object.kind) {
    case Kind::null:
        break;
    case Kind::boolean:
        count = low == 0x09 ? 1 : 0;
        break;
    case Kind::integer:
    case Kind::real:
    case Kind::date:
        count = quint64(1) << low;
        break;
    case Kind::uid:
        count = low + 1u;
        break;
    default:
        if (low == kCountFollows)
            count = readCount(start);
    }
    if (count > offsetTable_)
        throw CorruptArchive{"an object is longer than the file"};
    object.count = quint32(count);
    object.start = quint32(start);
    if (payloadSize(object) > offsetTable_ - start)
        throw CorruptArchive{"an object reaches beyond its place"};
    return object;
}

quint64 PropertyListObjectTable::readCount(quint64& position) const
{
    if (position >= offsetTable_)
        throw CorruptArchive{"an object reaches beyond its place"};
    const quint8 marker = quint8(bytes_.at(qsizetype(position)));
    if (marker < 0x10 || marker > 0x13)
        throw CorruptArchive{"an object's length is not a number"};
    const quint32 width = 1u << (marker & 0x0F);
    if (width > offsetTable_ - position - 1)
        throw CorruptArchive{"an object reaches beyond its place"};
    const quint64 count = bigEndian(position + 1, width);
    position += 1 + width;
    return count;
}

quint64 PropertyListObjectTable::payloadSize(const Object& object) const
{
    switch (object.kind) {
    case Kind::null:
    case Kind::boolean:
        return 0;
    case Kind::utf16String:
        return quint64(object.count) * 2;
    case Kind::array:
    case Kind::set:
        return quint64(object.count) * referenceSize_;
    case Kind::dictionary:
        return quint64(object.count) * 2 * referenceSize_;
    default:
        return object.count;
    }
}

void PropertyListObjectTable::checkPayload(const Object& object) const
{
    switch (object.kind) {
    case Kind::utf8String:
        if (!QUtf8StringView(bytes(object).data(), bytes(object).size()).isValidUtf8())
            throw CorruptArchive{"a text is not valid UTF-8"};
        break;
    case Kind::integer:
        checkInteger(object);
        break;
    case Kind::array:
    case Kind::set:
    case Kind::dictionary: {
        const quint64 references = quint64(object.count) * (object.kind == Kind::dictionary ? 2 : 1);
        for (quint64 i = 0; i < references; ++i) {
            if (bigEndian(object.start + i * referenceSize_, referenceSize_) >= objectCount_)
                throw CorruptArchive{"a reference points to no object"};
        }
        break;
    }
    default:
        break;
    }
}

void PropertyListObjectTable::checkInteger(const Object& object) const
{
    if (object.count != 16)
        return;
    const quint64 high = bigEndian(object.start, 8);
    const bool negative = high == ~quint64(0) && qint64(integerBits(object)) < 0;
    if (high != 0 && !negative)
        throw CorruptArchive{"a number has more than 64 bits"};
}

quint64 PropertyListObjectTable::bigEndian(quint64 position, quint32 width) const
{
    const auto* data = reinterpret_cast<const uchar*>(bytes_.constData()) + position;
    quint64 value = 0;
    for (quint32 i = 0; i < width; ++i)
        value = value << 8 | data[i];
    return value;
}

quint32 PropertyListObjectTable::reference(const Object& container, quint64 position) const
{
    return quint32(bigEndian(container.start + position * referenceSize_, referenceSize_));
}

std::optional<quint32> PropertyListObjectTable::valueForKey(const Object& dictionary,
                                                            QByteArrayView key) const
{
    for (quint32 i = 0; i < dictionary.count; ++i) {
        if (isText(object(reference(dictionary, i)), key))
            return reference(dictionary, quint64(dictionary.count) + i);
    }
    return std::nullopt;
}

QByteArrayView PropertyListObjectTable::bytes(const Object& object) const
{
    return QByteArrayView(bytes_.constData() + object.start, qsizetype(object.count));
}

QString PropertyListObjectTable::string(const Object& object) const
{
    if (object.kind != Kind::utf16String)
        return QString::fromUtf8(bytes(object));
    QString text(qsizetype(object.count), Qt::Uninitialized);
    QChar* unit = text.data();
    for (quint32 i = 0; i < object.count; ++i)
        unit[i] = QChar(quint16(bigEndian(object.start + quint64(i) * 2, 2)));
    return text;
}

bool PropertyListObjectTable::isText(const Object& object, QByteArrayView text) const
{
    if (quint64(text.size()) != object.count)
        return false;
    if (object.kind == Kind::utf8String)
        return bytes(object) == text;
    return object.kind == Kind::utf16String && string(object) == QLatin1StringView(text);
}

double PropertyListObjectTable::number(const Object& object) const
{
    if (object.kind == Kind::integer && isUnsigned(object))
        return double(integerBits(object));
    if (object.kind == Kind::integer)
        return double(qint64(integerBits(object)));
    if (object.count == 4)
        return double(std::bit_cast<float>(quint32(bigEndian(object.start, 4))));
    return std::bit_cast<double>(bigEndian(object.start, 8));
}

quint64 PropertyListObjectTable::integerBits(const Object& object) const
{
    if (object.count == 16)
        return bigEndian(object.start + 8, 8);
    return bigEndian(object.start, object.count);
}

bool PropertyListObjectTable::isUnsigned(const Object& integer) const
{
    return integer.count == 16 && bigEndian(integer.start, 8) == 0;
}

} // namespace halvern
