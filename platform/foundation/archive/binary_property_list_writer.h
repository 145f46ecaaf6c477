// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <span>
#include <vector>

namespace halvern {

/// Builds a binary property list object by object; children come before their containers. Each add answers
/// the new object's index. Throws CorruptArchive when there are too many objects. Any thread.
class BinaryPropertyListWriter {
public:
    BinaryPropertyListWriter();

    quint32 addBoolean(bool value);
    quint32 addSigned(qint64 value);

    /// Writes the 16 bytes that keep a large number apart from a negative one.
    quint32 addUnsigned(quint64 value);
    quint32 addReal(double value);

    /// Seconds since 1 January 2001 UTC.
    quint32 addDate(double seconds);
    quint32 addData(QByteArrayView bytes);
    quint32 addUtf8String(QByteArrayView text);
    quint32 addUid(quint64 value);
    quint32 addArray(std::span<const quint32> elements);

    /// Keys and values in turn.
    quint32 addDictionary(std::span<const quint32> keysAndValues);

    quint32 objectCount() const { return quint32(offsets_.size()); }

    /// Takes back the objects from `index` on, which nothing refers to yet.
    void dropFrom(quint32 index);

    /// The finished list with its offset table and trailer. The writer is empty afterwards.
    QByteArray finish(quint32 topObject);

private:
    quint32 begin(quint8 marker);
    void addCount(quint8 kind, quint64 count);
    void addBigEndian(quint64 value, int width);

    QByteArray bytes_;
    std::vector<quint32> offsets_;
};

} // namespace halvern
