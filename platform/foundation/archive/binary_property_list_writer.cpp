// SPDX-License-Identifier: MIT
#include "platform/foundation/archive/binary_property_list_writer.h"

#include "platform/foundation/archive/property_list_object_table.h"

#include <array>
#include <bit>
#include <utility>

namespace halvern {

namespace {

constexpr int kReferenceSize = 4;

} // namespace

BinaryPropertyListWriter::BinaryPropertyListWriter() : bytes_("bplist00") {}

quint32 BinaryPropertyListWriter::begin(quint8 marker)
{
    if (offsets_.size() >= kMaxArchiveObjects)
        throw CorruptArchive{"it has more than four million objects"};
    offsets_.push_back(quint32(bytes_.size()));
    bytes_.append(char(marker));
    return quint32(offsets_.size() - 1);
}

void BinaryPropertyListWriter::addBigEndian(quint64 value, int width)
{
    std::array<char, 8> bytes{};
    for (int i = 0; i < width; ++i)
        bytes[std::size_t(i)] = char(value >> (width - 1 - i) * 8 & 0xFF);
    bytes_.append(bytes.data(), width);
}

void BinaryPropertyListWriter::addCount(quint8 kind, quint64 count)
{
    if (count < 15) {
        begin(quint8(kind | count));
        return;
    }
    begin(kind | 0x0F);
    bytes_.append(char(0x12));
    addBigEndian(count, 4);
}

quint32 BinaryPropertyListWriter::addBoolean(bool value)
{
    return begin(value ? 0x09 : 0x08);
}

quint32 BinaryPropertyListWriter::addSigned(qint64 value)
{
    const quint32 index = begin(0x13);
    addBigEndian(quint64(value), 8);
    return index;
}

quint32 BinaryPropertyListWriter::addUnsigned(quint64 value)
{
    const quint32 index = begin(0x14);
    addBigEndian(0, 8);
    addBigEndian(value, 8);
    return index;
}

quint32 BinaryPropertyListWriter::addReal(double value)
{
    const quint32 index = begin(0x23);
    addBigEndian(std::bit_cast<quint64>(value), 8);
    return index;
}

quint32 BinaryPropertyListWriter::addDate(double seconds)
{
    const quint32 index = begin(0x33);
    addBigEndian(std::bit_cast<quint64>(seconds), 8);
    return index;
}

quint32 BinaryPropertyListWriter::addData(QByteArrayView bytes)
{
    addCount(0x40, quint64(bytes.size()));
    bytes_.append(bytes);
    return quint32(offsets_.size() - 1);
}

quint32 BinaryPropertyListWriter::addUtf8String(QByteArrayView text)
{
    addCount(0x70, quint64(text.size()));
    bytes_.append(text);
    return quint32(offsets_.size() - 1);
}

quint32 BinaryPropertyListWriter::addUid(quint64 value)
{
    const quint32 index = begin(0x87);
    addBigEndian(value, 8);
    return index;
}

quint32 BinaryPropertyListWriter::addArray(std::span<const quint32> elements)
{
    addCount(0xA0, elements.size());
    for (const quint32 element : elements)
        addBigEndian(element, kReferenceSize);
    return quint32(offsets_.size() - 1);
}

quint32 BinaryPropertyListWriter::addDictionary(std::span<const quint32> keysAndValues)
{
    addCount(0xD0, keysAndValues.size() / 2);
    for (std::size_t part = 0; part < 2; ++part) {
        for (std::size_t i = part; i < keysAndValues.size(); i += 2)
            addBigEndian(keysAndValues[i], kReferenceSize);
    }
    return quint32(offsets_.size() - 1);
}

void BinaryPropertyListWriter::dropFrom(quint32 index)
{
    bytes_.truncate(offsets_.at(index));
    offsets_.resize(index);
}

QByteArray BinaryPropertyListWriter::finish(quint32 topObject)
{
    const quint64 table = quint64(bytes_.size());
    bytes_.reserve(bytes_.size() + qsizetype(offsets_.size()) * 4 + 32);
    for (const quint32 offset : offsets_)
        addBigEndian(offset, 4);
    addBigEndian(0, 6);
    bytes_.append(char(4)).append(char(kReferenceSize));
    addBigEndian(offsets_.size(), 8);
    addBigEndian(topObject, 8);
    addBigEndian(table, 8);
    offsets_ = {};
    return std::exchange(bytes_, {});
}

} // namespace halvern
