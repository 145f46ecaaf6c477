// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

namespace halvern {

/// Thrown inside the archive reader when the input breaks a rule, never out of it. `why` is a literal.
struct CorruptArchive {
    const char* why;
};

inline constexpr qsizetype kMaxArchiveBytes = 32 * 1024 * 1024;
inline constexpr quint32 kMaxArchiveObjects = 4'000'000;
inline constexpr quint64 kMaxLooksPerByte = 8;

/// The flat object table of a binary property list, read in place: nothing is copied, expanded or followed.
///
/// The constructor checks every object once (place, length, references, text), so that reading afterwards
/// cannot fail but in one way: whoever looks at more objects than kMaxLooksPerByte for each byte of the file
/// is stopped, by CorruptArchive, because honest archives need less than one. So reading takes time in
/// proportion to the bytes whatever they hold. No memory of its own. One thread at a time.
class PropertyListObjectTable {
public:
    enum class Kind : quint8 {
        null,
        boolean,
        integer,
        real,
        date,
        data,
        utf8String,
        utf16String,
        uid,
        array,
        set,
        dictionary
    };

    struct Object {
        Kind kind = Kind::null;
        /// Bytes of a number or data, code units of a string, elements of an array, pairs of a dictionary;
        /// the value of a boolean.
        quint32 count = 0;
        /// Where the payload begins in the file.
        quint32 start = 0;
    };

    /// Throws CorruptArchive unless `bytes` is a binary property list that keeps all rules.
    explicit PropertyListObjectTable(QByteArray bytes);

    static bool hasMagic(QByteArrayView bytes);

    quint32 objectCount() const { return objectCount_; }

    qsizetype byteCount() const { return bytes_.size(); }

    /// The index of the list's outermost object.
    quint32 topObject() const { return topObject_; }

    /// `index` is below objectCount(), as every index that this class answers is.
    Object object(quint32 index) const;

    /// The index of an array's or set's element. `position` is below the count.
    quint32 element(const Object& array, quint32 position) const { return reference(array, position); }

    /// The index of the dictionary's value for an ASCII key, the first one if there are several.
    std::optional<quint32> valueForKey(const Object& dictionary, QByteArrayView key) const;

    /// The payload bytes of data and of a UTF-8 string.
    QByteArrayView bytes(const Object& object) const;

    /// A string object's text, of either encoding. A surrogate without its partner is kept as it is.
    QString string(const Object& object) const;

    /// Whether the object is this ASCII text.
    bool isText(const Object& object, QByteArrayView text) const;

    /// The value of an integer, a real or a date.
    double number(const Object& object) const;

    /// The low 64 bits of an integer, or the value of a UID.
    quint64 integerBits(const Object& object) const;

    /// Whether an integer is stored in the 16 bytes that writers use for unsigned numbers, and is not
    /// negative. All others are signed.
    bool isUnsigned(const Object& integer) const;

private:
    void readTrailer();
    void checkObjects() const;
    void checkPayload(const Object& object) const;
    void checkInteger(const Object& object) const;
    quint64 readCount(quint64& position) const;
    quint64 bigEndian(quint64 position, quint32 width) const;
    quint32 reference(const Object& container, quint64 position) const;
    quint64 payloadSize(const Object& object) const;

    QByteArray bytes_;
    quint32 objectCount_ = 0;
    quint32 topObject_ = 0;
    quint32 offsetTable_ = 0;
    quint8 offsetSize_ = 0;
    quint8 referenceSize_ = 0;
    mutable quint64 looks_ = 0;
};

} // namespace halvern
