// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>

namespace halvern::test {

/// Big-endian bytes of a number.
QByteArray bigEndian(quint64 value, int width);

/// Assembles binary keyed archives from the bytes of their objects, right or wrong. Independent of the
/// project's own writer.
class ArchiveAssembler {
public:
    ArchiveAssembler();

    /// Adds an object to the property list, given its bytes; answers its index.
    int add(const QByteArray& bytes);

    /// These are added once and shared, as writers do.
    int text(const char* text);
    int integer(qint64 value);
    int uid(quint64 value, int width = 4);
    int array(const QList<int>& elements);
    int dictionary(const QList<int>& keys, const QList<int>& values);

    /// Adds a place to the archive's own object list; answers its number, which uid() takes.
    int archived(int object);

    /// An archived class entry; `ancestors` are further class names.
    int classEntry(const char* name, const QList<const char*>& ancestors = {"NSObject"});

    /// Archived instances. Members are numbers in the archive's object list.
    int archivedDictionary(const QList<int>& keys, const QList<int>& values);
    int archivedList(const QList<int>& elements, const char* name = "NSArray");

    /// An archived instance with one field besides its class.
    int archivedInstance(const char* className, const char* field, int fieldObject);
    QList<int> references(const QList<int>& archivedNumbers);

    /// The archive whose root is the given place of the object list.
    QByteArray finish(int root, const char* archiver = "NSKeyedArchiver", qint64 version = 100'000);

    /// The archive that has one record "paper" whose "field" is the given place of the object list.
    QByteArray finishWithField(int value);

    /// Only the property list, with the given top object.
    QByteArray propertyList(int top) const;

private:
    int shared(const QByteArray& bytes);

    QList<QByteArray> objects_;
    QList<int> archived_;
    QHash<QByteArray, int> shared_;
};

/// An XML archive that has one record "paper" with one "field".
QByteArray xmlArchive(const QByteArray& value);

} // namespace halvern::test
