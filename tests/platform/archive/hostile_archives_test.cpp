// SPDX-License-Identifier: MIT
#include "platform/foundation/archive/keyed_unarchiver.h"
#include "tests/platform/archive/archive_assembler.h"
#include "tests/support/test.h"

#include <tuple>

namespace halvern {
namespace {

using test::ArchiveAssembler;
using test::bigEndian;
using test::xmlArchive;

constexpr int kMegabyte = 1000 * 1000;
constexpr qsizetype kLargestFile = 32 * 1024 * 1024;

/// `words` are part of the reason, for archives that would be corrupt for another one as well.
void expectCorrupt(const char* name, const QByteArray& archive, const char* words = "")
{
    SCOPED_TRACE(name);
    const KeyedUnarchiver::Result result = KeyedUnarchiver::unarchiveDictionary(archive);
    EXPECT_FALSE(result.root);
    EXPECT_TRUE(result.failure.startsWith(q("corrupt: ")) &&
                result.failure.contains(QLatin1StringView(words)))
        << qPrintable(result.failure);
}

QByteArray rootOf(auto root)
{
    ArchiveAssembler archive;
    const int number = root(archive);
    return archive.finish(number);
}

QByteArray withField(auto value)
{
    ArchiveAssembler archive;
    return archive.finishWithField(value(archive));
}

QByteArray withObject(const QByteArray& object)
{
    return withField([&](auto& a) { return a.archived(a.add(object)); });
}

QByteArray withTrailer(int position, const QByteArray& bytes)
{
    QByteArray archive = withObject("\x51x");
    return archive.replace(archive.size() - 32 + position, bytes.size(), bytes);
}

/// A chain of lists, each of which holds the one before `width` times.
QByteArray chainOfLists(int depth, int width)
{
    return withField([=](auto& a) {
        int list = a.archived(a.text("seed"));
        for (int i = 0; i < depth; ++i)
            list = a.archivedList(QList<int>(width, list));
        return list;
    });
}

QByteArray selfContaining(int steps)
{
    return withField([steps](auto& a) {
        const int first = int(a.archived(a.text("place"))) + 2;
        int list = a.archivedList({first + 2 * (steps - 1)});
        for (int i = 1; i < steps; ++i)
            list = a.archivedList({list});
        EXPECT_EQ(list, first + 2 * (steps - 1));
        return list;
    });
}

QByteArray keysAndValues(int keys, int values)
{
    return withField([&](auto& a) {
        const int text = a.archived(a.text("x"));
        return a.archivedDictionary(QList<int>(keys, text), QList<int>(values, text));
    });
}

/// Many objects that all lie on the same long array.
QByteArray overlappingObjects()
{
    QByteArray list("bplist00");
    const int elements = 1'000'000;
    list += "\xAF\x12" + bigEndian(elements, 4) + QByteArray(elements * 3, '\0');
    const quint64 table = quint64(list.size());
    const int objects = 500'000;
    for (int i = 0; i < objects; ++i)
        list += bigEndian(8, 4);
    return list + QByteArray(6, '\0') + "\x04\x03" + bigEndian(objects, 8) + bigEndian(0, 8) +
           bigEndian(table, 8);
}

QByteArray filled(const QByteArray& start, const QByteArray& piece, qsizetype size = kLargestFile)
{
    return start + piece.repeated((size - start.size()) / piece.size());
}

QByteArray manyAttributes(int count)
{
    QByteArray xml("<plist><dict ");
    for (int i = 0; i < count; ++i)
        xml += "a" + QByteArray::number(i) + "='' ";
    return xml + "/></plist>";
}

/// An XML archive with a value that nothing refers to.
QByteArray xmlBeside(const QByteArray& value)
{
    return xmlArchive("<true/>").replace("<key>$top", "<key>x</key>" + value + "<key>$top");
}

} // namespace

TEST(HostileArchives, BrokenTablesAreCorrupt)
{
    expectCorrupt("empty", "", "no property list");
    expectCorrupt("magic only", "bplist00");
    expectCorrupt("too large", "bplist00" + QByteArray(kLargestFile, '\0'), "larger than 32 MiB");
    expectCorrupt("offset size 0", withTrailer(6, QByteArray(1, '\0')), "as if the end were missing");
    expectCorrupt("reference size 9", withTrailer(7, "\x09"));
    expectCorrupt("huge object count", withTrailer(8, bigEndian(1ull << 61, 8)));
    expectCorrupt("no such top", withTrailer(16, bigEndian(1 << 20, 8)));
    expectCorrupt("table at the end of numbers", withTrailer(24, bigEndian(~0ull, 8)));
    expectCorrupt("table on the magic", withTrailer(24, bigEndian(0, 8)));
    expectCorrupt("unknown kind", withObject("\xF0"));
    expectCorrupt("huge string", withObject("\x5F\x13" + bigEndian(~0ull, 8)));
    expectCorrupt("huge array", withObject("\xAF\x12" + bigEndian(1'000'000, 4)));
    expectCorrupt("string over the end", withObject("\x6F\x10\xFF"));
    expectCorrupt("length of no number", withObject("\x5F\x50"));
    expectCorrupt("reference to nowhere", withObject("\xA1" + bigEndian(1 << 24, 4)), "to no object");
    expectCorrupt("invalid UTF-8", withObject("\x52\xC3\x28"));
    expectCorrupt("number of 65 bits", withObject(char(0x14) + bigEndian(1, 8) + bigEndian(0, 8)));
    expectCorrupt("overlapping objects", overlappingObjects(), "overlap");
}

TEST(HostileArchives, BrokenArchivesAreCorrupt)
{
    const QByteArray noNumber = char(0x23) + bigEndian(0x7FF8000000000000, 8);
    ArchiveAssembler noRoot;
    expectCorrupt("no root",
                  noRoot.propertyList(noRoot.dictionary({noRoot.text("$objects"), noRoot.text("$top")},
                                                        {noRoot.array({}), noRoot.dictionary({}, {})})));
    expectCorrupt("no archive", noRoot.propertyList(noRoot.text("x")));
    expectCorrupt("root is nil", rootOf([](auto&) { return 0; }), "not a dictionary");
    expectCorrupt("root is a list", rootOf([](auto& a) { return a.archivedList({}); }));
    expectCorrupt("root of an unknown class",
                  rootOf([](auto& a) { return a.archivedInstance("Spool", "any", a.text("x")); }));
    expectCorrupt("root out of range", rootOf([](auto&) { return 77; }));
    expectCorrupt("member out of range", withField([](auto& a) { return a.archivedList({77}); }));
    expectCorrupt("reference to a reference", withField([](auto& a) { return a.archived(a.uid(1)); }));
    expectCorrupt("more keys than values", keysAndValues(3, 2), "as many keys as values");
    expectCorrupt("more values than keys", keysAndValues(2, 3));
    for (const char* field : {"NS.keys", "NS.objects"})
        expectCorrupt(field, withField([field](auto& a) {
                          const int inlined = a.array({a.text("x")});
                          const int referred = a.array(a.references({a.archived(a.text("y"))}));
                          const bool key = field == QByteArrayView("NS.keys");
                          return a.archived(
                              a.dictionary({a.text("NS.keys"), a.text("NS.objects"), a.text("$class")},
                                           {key ? inlined : referred, key ? referred : inlined,
                                            a.uid(quint64(a.classEntry("NSDictionary")))}));
                      }),
                      "no reference");
    expectCorrupt("element that is no reference", withField([](auto& a) {
                      return a.archivedInstance("NSArray", "NS.objects", a.array({a.integer(1)}));
                  }),
                  "no reference");
    for (const auto& [archiver, version] :
         {std::pair("NSKeyedArchives", 100'000), {"NSKeyedArchiver", 99'999}}) {
        ArchiveAssembler other;
        expectCorrupt(archiver, other.finish(other.archivedDictionary({}, {}), archiver, version));
    }
    expectCorrupt("plain list", withField([](auto& a) { return a.archived(a.array({})); }));
    expectCorrupt("no class", withField([](auto& a) { return a.archived(a.dictionary({}, {})); }));
    expectCorrupt("class is nil", withField([](auto& a) {
                      return a.archived(a.dictionary({a.text("$class")}, {a.uid(0)}));
                  }));
    expectCorrupt("class without a name", withField([](auto& a) {
                      const int type = a.archived(a.dictionary({}, {}));
                      return a.archived(a.dictionary({a.text("$class")}, {a.uid(quint64(type))}));
                  }));
    for (const auto& [type, field, object] : {std::tuple("NSString", "NS.string", QByteArray("\x10\x01")),
                                              {"NSDate", "NS.time", noNumber},
                                              {"NSArray", "NS.keys", "\xA0"}})
        expectCorrupt(type,
                      withField([&](auto& a) { return a.archivedInstance(type, field, a.add(object)); }));
    expectCorrupt("contains itself", selfContaining(1), "contains itself");
    expectCorrupt("contains itself over others", selfContaining(5));
}

TEST(HostileArchives, BombsAreCorruptAtTheCostOfTheirSize)
{
    expectCorrupt("too deep", chainOfLists(63, 1), "nested too deeply");
    expectCorrupt("far too deep", chainOfLists(100'000, 1));
    expectCorrupt("doubled 60 times", chainOfLists(60, 2), "four million values");
    expectCorrupt("doubled 20 times", chainOfLists(20, 2), "many times the values");
    // A list of one long text: small here, forty times as long when it is printed.
    expectCorrupt("long text shared", withField([](auto& a) {
                      const QByteArray text(kMegabyte, 'x');
                      return a.archivedList(QList<int>(40, a.archived(a.text(text.constData()))));
                  }),
                  "32 million characters");
}

TEST(HostileArchives, XmlThatIsNoPropertyListIsCorrupt)
{
    ASSERT_TRUE(KeyedUnarchiver::unarchiveDictionary(xmlBeside("<array/>")).root);
    const char* const values[] = {
        "<blob/>", "<x:string>x</x:string>", "<array>x</array>", "<dict><true/><true/></dict>",
        "<array><key>a</key></array>", "<dict><key>a</key></dict>", "<true>x</true>", "<true>",
        // Numbers
        "<integer>12x</integer>", "<integer>18446744073709551616</integer>", "<integer>0x-5</integer>",
        "<integer/>", "<integer>-9223372036854775809</integer>", "<real>1.5,</real>", "<real>+-1</real>",
        // Dates, data, texts
        "<date>yesterday</date>", "<date>2026-02-28T06:30:00</date>", "<date>2026-02-30T06:30:00Z</date>",
        "<data>A*==</data>", "<data>A</data>", "<data>====</data>", "<string>&lol;</string>"};
    for (const char* value : values)
        expectCorrupt(value, xmlBeside(value));

    const QByteArray good = xmlArchive("<true/>");
    expectCorrupt("another root", QByteArray(good).replace("plist", "svg"));
    expectCorrupt("nothing inside", "<plist></plist>");
    expectCorrupt("two values", QByteArray(good).replace("</plist>", "<true/></plist>"));
    expectCorrupt("Latin-1", QByteArray(good).replace("UTF-8", "ISO-8859-1"));
    expectCorrupt("entities",
                  QByteArray(good).replace("<plist", "<!DOCTYPE plist [<!ENTITY lol 'lol'>]><plist"), "DTD");
}

TEST(HostileArchives, XmlIsReadUpToItsLimitsOrIsCorrupt)
{
    EXPECT_TRUE(
        KeyedUnarchiver::unarchiveDictionary(xmlArchive("<data>" + QByteArray(16'000'000, 'A') + "</data>"))
            .root);
    const QByteArray reals = QByteArray("<real>1</real>").repeated(kMegabyte);
    EXPECT_TRUE(KeyedUnarchiver::unarchiveDictionary(xmlBeside("<array>" + reals + "</array>")).root);
    expectCorrupt("many attributes", manyAttributes(80'000), "a tag that is too long");
    expectCorrupt("nesting", filled("<plist>", "<array>", kMegabyte), "nested too deeply");
    expectCorrupt("long text", filled("<plist><string>", "x"), "16 MiB");
    expectCorrupt("pieced text", filled("<plist><string>", "<![CDATA[" + QByteArray(40, 'x') + "]]>"),
                  "16 MiB");
    expectCorrupt("many values", filled("<plist><array>", "<true/>", 10 * kMegabyte), "1,100,000 values");
    expectCorrupt("many tags", filled("<plist><array>", "<true/>"), "four million tags");
}

} // namespace halvern
