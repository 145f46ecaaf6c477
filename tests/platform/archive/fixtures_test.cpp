// SPDX-License-Identifier: MIT
#include "platform/foundation/archive/keyed_unarchiver.h"
#include "tests/support/test.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace halvern {
namespace {

QByteArray contentOf(const QString& file)
{
    QFile source(QDir(q(HALVERN_FIXTURES)).filePath(file));
    EXPECT_TRUE(source.open(QIODevice::ReadOnly)) << qPrintable(file);
    return source.readAll();
}

/// The value in the notation of the expectations: {"type": ..., "value": ...}.
QJsonObject described(const QVariant& value)
{
    QJsonObject result;
    switch (value.typeId()) {
    case QMetaType::QVariantMap: {
        QJsonObject entries;
        const QVariantMap map = value.toMap();
        for (auto entry = map.begin(); entry != map.end(); ++entry)
            entries.insert(entry.key(), described(entry.value()));
        return {{q("type"), q("dict")}, {q("value"), entries}};
    }
    case QMetaType::QString:
        return {{q("type"), q("string")}, {q("value"), value.toString()}};
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return {{q("type"), q("int")}, {q("value"), value.toDouble()}};
    default:
        return {{q("type"), QString::fromLatin1(value.typeName())}};
    }
}

} // namespace

TEST(KeyedUnarchiverFixtures, EachFileHoldsWhatItsWriterPutIn)
{
    const QDir folder(q(HALVERN_FIXTURES));
    int files = 0;
    for (const QString& name : folder.entryList({q("*.json")})) {
        const QJsonObject expected = QJsonDocument::fromJson(contentOf(name)).object();
        for (const QJsonValue& file : expected[q("files")].toArray()) {
            SCOPED_TRACE(qPrintable(file.toString()));
            ++files;
            const auto result = KeyedUnarchiver::unarchiveDictionary(contentOf(file.toString()));
            if (!expected[q("catalogue")].toBool()) {
                EXPECT_FALSE(result.root);
                EXPECT_EQ(result.failure, q("corrupt: its root is not a dictionary"));
                continue;
            }
            ASSERT_TRUE(result.root) << qPrintable(result.failure);
            EXPECT_EQ(result.root->size(), expected[q("record_count")].toInt());
            EXPECT_EQ(described(*result.root)[q("value")].toObject(), expected[q("records")].toObject());
        }
    }
    EXPECT_GE(files, 10);
}

TEST(KeyedUnarchiverFixtures, AFileCutAnywhereIsCorrupt)
{
    const QByteArray binary = contentOf(q("platform_mutable.bin.plist"));
    for (qsizetype size = 0; size < binary.size(); ++size)
        ASSERT_FALSE(KeyedUnarchiver::unarchiveDictionary(binary.first(size)).root) << size;
    const QByteArray xml = contentOf(q("mutable_strings.xml.plist")).trimmed();
    for (qsizetype size = 0; size < xml.size(); ++size)
        ASSERT_FALSE(KeyedUnarchiver::unarchiveDictionary(xml.first(size)).root) << size;
}

} // namespace halvern
