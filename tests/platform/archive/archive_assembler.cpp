// SPDX-License-Identifier: MIT
#include "tests/platform/archive/archive_assembler.h"

namespace halvern::test {

namespace {

constexpr int kReferenceWidth = 4;

QByteArray head(int kind, qsizetype count)
{
    if (count < 15)
        return QByteArray(1, char(kind | int(count)));
    return QByteArray(1, char(kind | 15)) + char(0x12) + bigEndian(quint64(count), 4);
}

QByteArray referenceBytes(const QList<int>& objects)
{
    QByteArray bytes;
    for (const int object : objects)
        bytes += bigEndian(quint64(object), kReferenceWidth);
    return bytes;
}

QByteArray xmlReference(int number)
{
    return "<dict><key>CF$UID</key><integer>" + QByteArray::number(number) + "</integer></dict>";
}

} // namespace

QByteArray bigEndian(quint64 value, int width)
{
    QByteArray bytes;
    for (int shift = (width - 1) * 8; shift >= 0; shift -= 8)
        bytes += char(value >> shift);
    return bytes;
}

ArchiveAssembler::ArchiveAssembler()
{
    archived(text("$null"));
}

int ArchiveAssembler::add(const QByteArray& bytes)
{
    objects_.append(bytes);
    return int(objects_.size() - 1);
}

int ArchiveAssembler::shared(const QByteArray& bytes)
{
    const auto known = shared_.constFind(bytes);
    if (known != shared_.constEnd())
        return *known;
    return *shared_.insert(bytes, add(bytes));
}

int ArchiveAssembler::text(const char* text)
{
    return shared(head(0x50, qsizetype(qstrlen(text))) + text);
}

int ArchiveAssembler::integer(qint64 value)
{
    return shared(char(0x13) + bigEndian(quint64(value), 8));
}

int ArchiveAssembler::uid(quint64 value, int width)
{
    return shared(char(0x80 + width - 1) + bigEndian(value, width));
}

int ArchiveAssembler::array(const QList<int>& elements)
{
    return add(head(0xA0, elements.size()) + referenceBytes(elements));
}

int ArchiveAssembler::dictionary(const QList<int>& keys, const QList<int>& values)
{
    return add(head(0xD0, keys.size()) + referenceBytes(keys) + referenceBytes(values));
}

int ArchiveAssembler::archived(int object)
{
    archived_.append(object);
    return int(archived_.size() - 1);
}

int ArchiveAssembler::classEntry(const char* name, const QList<const char*>& ancestors)
{
    QList<int> names{text(name)};
    for (const char* ancestor : ancestors)
        names.append(text(ancestor));
    return archived(dictionary({text("$classname"), text("$classes")}, {names.first(), array(names)}));
}

QList<int> ArchiveAssembler::references(const QList<int>& archivedNumbers)
{
    QList<int> uids;
    for (const int number : archivedNumbers)
        uids.append(uid(quint64(number)));
    return uids;
}

int ArchiveAssembler::archivedDictionary(const QList<int>& keys, const QList<int>& values)
{
    const int type = uid(quint64(classEntry("NSDictionary")));
    return archived(dictionary({text("NS.keys"), text("NS.objects"), text("$class")},
                               {array(references(keys)), array(references(values)), type}));
}

int ArchiveAssembler::archivedList(const QList<int>& elements, const char* name)
{
    return archivedInstance(name, "NS.objects", array(references(elements)));
}

int ArchiveAssembler::archivedInstance(const char* className, const char* field, int fieldObject)
{
    const int type = uid(quint64(classEntry(className)));
    return archived(dictionary({text(field), text("$class")}, {fieldObject, type}));
}

QByteArray ArchiveAssembler::finish(int root, const char* archiver, qint64 version)
{
    const int top = dictionary({text("root")}, {uid(quint64(root))});
    return propertyList(dictionary({text("$version"), text("$archiver"), text("$objects"), text("$top")},
                                   {integer(version), text(archiver), array(archived_), top}));
}

QByteArray ArchiveAssembler::finishWithField(int value)
{
    const int record = archivedDictionary({archived(text("field"))}, {value});
    return finish(archivedDictionary({archived(text("paper"))}, {record}));
}

QByteArray ArchiveAssembler::propertyList(int top) const
{
    QByteArray list("bplist00");
    QByteArray offsets;
    for (const QByteArray& object : objects_) {
        offsets += bigEndian(quint64(list.size()), 4);
        list += object;
    }
    const quint64 table = quint64(list.size());
    list += offsets + QByteArray(6, '\0') + char(4) + char(kReferenceWidth);
    return list + bigEndian(quint64(objects_.size()), 8) + bigEndian(quint64(top), 8) + bigEndian(table, 8);
}

QByteArray xmlArchive(const QByteArray& value)
{
    const auto dictionary = [](int key, int entry) {
        return "<dict><key>$class</key>" + xmlReference(6) + "<key>NS.keys</key><array>" + xmlReference(key) +
               "</array><key>NS.objects</key><array>" + xmlReference(entry) + "</array></dict>";
    };
    const auto classNamed = [](const char* name) {
        return QByteArray("<dict><key>$classname</key><string>") + name + "</string></dict>";
    };
    return "<?xml version='1.0' encoding='UTF-8'?><plist version='1.0'><dict><key>$version</key>"
           "<integer>100000</integer><key>$archiver</key><string>NSKeyedArchiver</string><key>$top</"
           "key><dict>"
           "<key>root</key>" +
           xmlReference(1) + "</dict><key>$objects</key><array><string>$null</string>" + dictionary(2, 3) +
           "<string>paper</string>" + dictionary(4, 5) + "<string>field</string>" + value +
           classNamed("NSDictionary") + "</array></dict></plist>";
}

} // namespace halvern::test
