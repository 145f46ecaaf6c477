// SPDX-License-Identifier: MIT
#include "platform/foundation/archive/keyed_unarchiver.h"
#include "tests/platform/archive/archive_assembler.h"
#include "tests/support/test.h"

#include <QDateTime>

#include <limits>

namespace halvern {
namespace {

using test::ArchiveAssembler;
using test::bigEndian;
using test::xmlArchive;

/// What the reader makes of one field. Invalid if the field was dropped.
QVariant decodedField(const QByteArray& archive)
{
    const auto result = KeyedUnarchiver::unarchiveDictionary(archive);
    EXPECT_TRUE(result.root) << qPrintable(result.failure);
    if (!result.root)
        return q("corrupt");
    EXPECT_EQ(result.root->size(), 1);
    return result.root->value(q("paper")).toMap().value(q("field"));
}

QDateTime moment(const char* text)
{
    return QDateTime::fromString(q(text), Qt::ISODate);
}

} // namespace

TEST(KeyedUnarchiverValues, BinaryValuesKeepTheirKind)
{
    const qint64 least = std::numeric_limits<qint64>::min();
    const quint64 most = std::numeric_limits<quint64>::max();
    const QByteArray zeros(8, '\0');
    const QByteArray ones(8, '\xFF');
    const QByteArray halfDay = char(0x33) + bigEndian(0x40E5180000000000, 8); // 43,200.0

    const struct {
        QByteArray object;
        QVariant expected;
    } cases[] = {
        {QByteArray("\x10\xFF"), qint64(255)},
        {char(0x12) + bigEndian(0xFFFFFFFF, 4), qint64(4294967295)},
        {char(0x13) + bigEndian(quint64(least), 8), least},
        {char(0x14) + zeros + bigEndian(3000, 8), quint64(3000)},
        {char(0x14) + zeros + bigEndian(most, 8), most},
        {char(0x14) + ones + bigEndian(quint64(-7), 8), qint64(-7)},
        {char(0x22) + bigEndian(0x3FC00000, 4), 1.5},
        {char(0x23) + bigEndian(0xBFF8000000000000, 8), -1.5},
        {QByteArray("\x08"), false},
        {QByteArray("\x09"), true},
        {QByteArray("\x43\x00\x01\x02", 4), QByteArray("\x00\x01\x02", 3)},
        {halfDay, moment("2001-01-01T12:00:00Z")},
        {QByteArray("\x50"), q("")},
        {QByteArray("\x53\xE7\xB4\x99"), q("紙")},
        {QByteArray("\x73\xE7\xB4\x99"), q("紙")},
        {QByteArray("\x62\xD8\x3D\xDC\x04"), q("🐄")},
    };

    for (const auto& value : cases) {
        SCOPED_TRACE(value.object.toHex().constData());
        ArchiveAssembler archive;
        const QVariant field =
            decodedField(archive.finishWithField(archive.archived(archive.add(value.object))));
        EXPECT_EQ(field.typeId(), value.expected.typeId());
        EXPECT_EQ(field, value.expected);
    }
}

TEST(KeyedUnarchiverValues, XmlValuesKeepTheirKind)
{
    const struct {
        QByteArray element;
        QVariant expected;
    } cases[] = {
        {"<integer>-7</integer>", qint64(-7)},
        {"<integer> 0x10 </integer>", qint64(16)},
        {"<integer>18446744073709551615</integer>", std::numeric_limits<quint64>::max()},
        {"<real> +1.5e1 </real>", 15.0},
        {"<true/>", true},
        {"<date>2026-02-28T06:30:00Z</date>", moment("2026-02-28T06:30:00Z")},
        {"<data>\n AAEC\n </data>", QByteArray("\x00\x01\x02", 3)},
        {"<string/>", q("")},
        {"<string>a &lt;b&gt; &amp;&#x7D19;<!-- no --><![CDATA[<c>]]></string>", q("a <b> &紙<c>")},
    };

    for (const auto& value : cases) {
        SCOPED_TRACE(value.element.constData());
        const QVariant field = decodedField(xmlArchive(value.element));
        EXPECT_EQ(field.typeId(), value.expected.typeId());
        EXPECT_EQ(field, value.expected);
    }
}

TEST(KeyedUnarchiverValues, ObjectsAreReadByTheirClass)
{
    ArchiveAssembler archive;
    const int one = archive.archived(archive.integer(1));
    const int wrapped = archive.archivedInstance("NSMutableString", "NS.string", archive.text("inline"));
    const int distant = archive.archivedInstance("NSString", "NS.string",
                                                 archive.uid(quint64(archive.archived(archive.text("far")))));
    const int data = archive.archivedInstance("NSMutableData", "NS.data", archive.add("\x42hi"));
    const int date =
        archive.archivedInstance("NSDate", "NS.time", archive.add(char(0x23) + QByteArray(8, '\0')));
    const int wholeDate = archive.archivedInstance("NSDate", "NS.time", archive.integer(-60));
    const int number =
        archive.archivedInstance("NSNumber", "NS.dblval", archive.add("\x22\x3F\xC0" + QByteArray(2, '\0')));
    const int set = archive.archivedList({one}, "NSMutableSet");
    const int unknown = archive.archivedInstance("Spool", "NS.objects", archive.array({}));
    const int null = archive.archivedInstance("NSNull", "any", archive.integer(3));
    const int list = archive.archivedList(
        {wrapped, distant, data, date, wholeDate, number, set, unknown, null, 0, one}, "NSMutableArray");
    const QVariantList expected{q("inline"),
                                q("far"),
                                QByteArray("hi"),
                                moment("2001-01-01T00:00:00Z"),
                                moment("2000-12-31T23:59:00Z"),
                                1.5,
                                QVariantList{qint64(1)},
                                qint64(1)};
    EXPECT_EQ(decodedField(archive.finishWithField(list)), QVariant(expected));
}

TEST(KeyedUnarchiverValues, EntriesWithoutAKeyOrValueAreLeftOutAndTheLastOfEqualKeysStays)
{
    ArchiveAssembler archive;
    const int number = archive.archived(archive.integer(5));
    const int first = archive.archived(archive.text("first"));
    const int last = archive.archived(archive.text("last"));
    const int again = archive.archived(archive.text("first"));
    const int unknown = archive.archivedInstance("Spool", "any", archive.integer(1));
    const QByteArray bytes = archive.finish(
        archive.archivedDictionary({first, last, number, 0, again}, {number, unknown, number, number, last}));
    const auto result = KeyedUnarchiver::unarchiveDictionary(bytes);
    ASSERT_TRUE(result.root) << qPrintable(result.failure);
    EXPECT_EQ(*result.root, (QVariantMap{{q("first"), q("last")}}));
}

TEST(KeyedUnarchiverValues, OnlyWhatTheRootReachesCounts)
{
    ArchiveAssembler archive;
    archive.archivedInstance("NSString", "NS.string", archive.integer(1));
    archive.archived(archive.array({}));
    archive.archivedList({999});
    const int value = archive.archived(archive.text("kept"));
    EXPECT_EQ(decodedField(archive.finishWithField(value)), QVariant(q("kept")));
}

} // namespace halvern
