#include "platform/foundation/keyed_unarchiver.h"
#include "tests/platform/archive/archive_assembler.h"
#include "tests/platform/archive/peak_memory.h"

#include <gtest/gtest.h>

#include <ctime>
#include <functional>

namespace halvern {

namespace {

using test::ArchiveAssembler;
using test::bigEndian;

constexpr int kMegabyte = 1000 * 1000;

/// A release build takes less than one second (scripts/bench-archive); the sanitizers and the counting of
/// memory take many times as long. What this catches is time that grows faster than the input.
constexpr double kMaxCpuSeconds = 30.0;

double cpuSeconds()
{
    timespec now = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) / 1e9;
}

struct HostileArchive {
    const char* name;
    std::function<QByteArray()> make;
    const char* why;
};

QByteArray withField(const std::function<int(ArchiveAssembler&)>& value)
{
    ArchiveAssembler archive;
    return archive.finishWithField(value(archive));
}

/// A chain of lists, each of which holds the one before `width` times.
QByteArray chainOfLists(int depth, int width)
{
    ArchiveAssembler archive;
    int list = archive.archived(archive.text("seed"));
    for (int i = 0; i < depth; ++i)
        list = archive.archivedList(QList<int>(width, list));
    return archive.finishWithField(list);
}

QByteArray withTrailer(int position, const QByteArray& bytes)
{
    QByteArray archive = withField([](ArchiveAssembler& a) { return a.archived(a.text("x")); });
    return archive.replace(archive.size() - 32 + position, bytes.size(), bytes);
}

QByteArray withObject(const QByteArray& object)
{
    return withField([&](ArchiveAssembler& a) { return a.archived(a.add(object)); });
}

QByteArray selfContaining(int steps)
{
    return withField([steps](ArchiveAssembler& a) {
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
    return withField([&](ArchiveAssembler& a) {
        const int text = a.archived(a.text("x"));
        return a.archivedDictionary(QList<int>(keys, text), QList<int>(values, text));
    });
}

QByteArray rootOf(const std::function<int(ArchiveAssembler&)>& root)
{
    ArchiveAssembler archive;
    const int number = root(archive);
    return archive.finish(number);
}

QByteArray topOf(const std::function<int(ArchiveAssembler&)>& top)
{
    ArchiveAssembler archive;
    const int object = top(archive);
    return archive.propertyList(object);
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

QByteArray repeated(const QByteArray& start, const QByteArray& piece, qsizetype size)
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

/// A list of a long text, always the same: small here, forty times as long when it is printed.
QByteArray sharedLongText()
{
    return withField([](ArchiveAssembler& a) {
        const QByteArray text(1'000'000, 'x');
        const int shared = a.archived(a.text(text.constData()));
        return a.archivedList(QList<int>(40, shared));
    });
}

/// Instances whose looking through takes long, again and again.
QByteArray instancesWithManyFields()
{
    return withField([](ArchiveAssembler& a) {
        const int type = a.uid(quint64(a.classEntry("Spool")));
        QList<int> keys(500'000, a.text("NS.filler"));
        QList<int> values(500'000, type);
        keys.append(a.text("$class"));
        values.append(type);
        return a.archivedList(QList<int>(500'000, a.archived(a.dictionary(keys, values))));
    });
}

void expectCorrupt(const HostileArchive& hostile)
{
    SCOPED_TRACE(hostile.name);
    const QByteArray archive = hostile.make();
    const double start = cpuSeconds();
    KeyedUnarchiver::Result result;
    const std::size_t peak =
        test::peakMemoryOf([&] { result = KeyedUnarchiver::unarchiveDictionary(archive); });
    EXPECT_FALSE(result.root);
    EXPECT_EQ(result.failure.toStdString(), std::string("corrupt: ") + hostile.why);
    EXPECT_LT(peak + std::size_t(archive.size()), 200u * kMegabyte);
    EXPECT_LT(cpuSeconds() - start, kMaxCpuSeconds);
}

} // namespace

TEST(HostileArchives, BrokenTablesAreCorrupt)
{
    const char* outside = "an object reaches beyond its place";
    const HostileArchive cases[] = {
        {"empty", [] { return QByteArray(); }, "it is no property list"},
        {"text", [] { return QByteArray("paper"); }, "it is no property list"},
        {"magic only", [] { return QByteArray("bplist00"); }, "it is too short for a property list"},
        {"too large", [] { return "bplist00" + QByteArray(32 * 1024 * 1024, '\0'); },
         "it is larger than 32 MiB"},
        {"offset size 0", [] { return withTrailer(6, QByteArray(1, '\0')); },
         "its trailer has impossible sizes, as if the end were missing"},
        {"reference size 9", [] { return withTrailer(7, "\x09"); },
         "its trailer has impossible sizes, as if the end were missing"},
        {"huge object count", [] { return withTrailer(8, bigEndian(1ull << 61, 8)); },
         "it has more than four million objects"},
        {"no such top", [] { return withTrailer(16, bigEndian(1 << 20, 8)); },
         "its top object does not exist"},
        {"table at the end of numbers", [] { return withTrailer(24, bigEndian(~0ull, 8)); },
         "its offset table does not fit into the file"},
        {"table on the magic", [] { return withTrailer(24, bigEndian(0, 8)); },
         "its offset table does not fit into the file"},
        {"unknown kind", [] { return withObject("\xF0"); }, "an object is of no known kind"},
        {"UID of 9 bytes", [] { return withObject(char(0x88) + QByteArray(9, '\1')); },
         "an object is of no known kind"},
        {"huge string", [] { return withObject("\x5F\x13" + bigEndian(~0ull, 8)); },
         "an object is longer than the file"},
        {"huge array", [] { return withObject("\xAF\x12" + bigEndian(1'000'000, 4)); },
         "an object is longer than the file"},
        {"string over the end", [] { return withObject("\x6F\x10\xFF"); }, outside},
        {"length of no number", [] { return withObject("\x5F\x50"); }, "an object's length is not a number"},
        {"reference to nowhere", [] { return withObject("\xA1" + bigEndian(1 << 24, 4)); },
         "a reference points to no object"},
        {"invalid UTF-8", [] { return withObject("\x52\xC3\x28"); }, "a text is not valid UTF-8"},
        {"number of 65 bits", [] { return withObject(char(0x14) + bigEndian(1, 8) + bigEndian(0, 8)); },
         "a number has more than 64 bits"},
        {"overlapping objects", overlappingObjects, "its objects overlap"},
    };
    for (const HostileArchive& hostile : cases)
        expectCorrupt(hostile);
}

TEST(HostileArchives, BrokenArchivesAreCorrupt)
{
    const HostileArchive cases[] = {
        {"no archive", [] { return topOf([](ArchiveAssembler& a) { return a.text("x"); }); },
         "it is not a keyed archive"},
        {"no objects",
         [] {
             return topOf(
                 [](ArchiveAssembler& a) { return a.dictionary({a.text("$top")}, {a.dictionary({}, {})}); });
         },
         "it has no list of objects"},
        {"no root",
         [] {
             return topOf([](ArchiveAssembler& a) {
                 return a.dictionary({a.text("$objects"), a.text("$top")},
                                     {a.array({}), a.dictionary({}, {})});
             });
         },
         "it does not name its root"},
        {"root is nil", [] { return rootOf([](ArchiveAssembler&) { return 0; }); },
         "its root is not a dictionary"},
        {"root is a text", [] { return rootOf([](ArchiveAssembler& a) { return a.archived(a.text("x")); }); },
         "its root is not a dictionary"},
        {"root is a list", [] { return rootOf([](ArchiveAssembler& a) { return a.archivedList({}); }); },
         "its root is not a dictionary"},
        {"root of an unknown class",
         [] {
             return rootOf(
                 [](ArchiveAssembler& a) { return a.archivedInstance("Spool", "any", a.text("x")); });
         },
         "its root is not a dictionary"},
        {"root out of range", [] { return rootOf([](ArchiveAssembler&) { return 77; }); },
         "a reference points to no archived object"},
        {"member out of range",
         [] { return withField([](ArchiveAssembler& a) { return a.archivedList({77}); }); },
         "a reference points to no archived object"},
        {"reference to a reference",
         [] { return withField([](ArchiveAssembler& a) { return a.archived(a.uid(1)); }); },
         "a reference points to a reference"},
        {"more keys than values", [] { return keysAndValues(3, 2); },
         "a dictionary has not as many keys as values"},
        {"more values than keys", [] { return keysAndValues(2, 3); },
         "a dictionary has not as many keys as values"},
        {"plain list", [] { return withField([](ArchiveAssembler& a) { return a.archived(a.array({})); }); },
         "an archived object has no class"},
        {"no class",
         [] { return withField([](ArchiveAssembler& a) { return a.archived(a.dictionary({}, {})); }); },
         "an archived object has no class"},
        {"class is nil",
         [] {
             return withField([](ArchiveAssembler& a) {
                 return a.archived(a.dictionary({a.text("$class")}, {a.uid(0)}));
             });
         },
         "an archived object's class does not exist"},
        {"class without a name",
         [] {
             return withField([](ArchiveAssembler& a) {
                 const int type = a.archived(a.dictionary({}, {}));
                 return a.archived(a.dictionary({a.text("$class")}, {a.uid(quint64(type))}));
             });
         },
         "a class has no name"},
        {"string that is a number",
         [] {
             return withField([](ArchiveAssembler& a) {
                 return a.archivedInstance("NSString", "NS.string", a.integer(1));
             });
         },
         "a value is not of its class"},
        {"date that is no number",
         [] {
             return withField([](ArchiveAssembler& a) {
                 return a.archivedInstance("NSDate", "NS.time",
                                           a.add(char(0x23) + bigEndian(0x7FF8000000000000, 8)));
             });
         },
         "a date is out of range"},
        {"list without elements",
         [] {
             return withField(
                 [](ArchiveAssembler& a) { return a.archivedInstance("NSArray", "NS.keys", a.array({})); });
         },
         "a collection lacks its elements"},
        {"contains itself", [] { return selfContaining(1); }, "a collection contains itself"},
        {"contains itself over others", [] { return selfContaining(5); }, "a collection contains itself"},
    };
    for (const HostileArchive& hostile : cases)
        expectCorrupt(hostile);
}

TEST(HostileArchives, BombsAreCorruptAtTheCostOfTheirSize)
{
    const char* values = "it comes to more than four million values";
    const HostileArchive cases[] = {
        {"too deep", [] { return chainOfLists(63, 1); }, "it is nested too deeply"},
        {"far too deep", [] { return chainOfLists(100'000, 1); }, "it is nested too deeply"},
        {"doubled 60 times", [] { return chainOfLists(60, 2); }, values},
        {"wide and shared", [] { return chainOfLists(4, 1000); }, values},
        {"long text shared", sharedLongText, "its texts come to more than 32 million characters"},
    };
    for (const HostileArchive& hostile : cases)
        expectCorrupt(hostile);
}

TEST(HostileArchives, AnInstanceIsLookedThroughOnceHoweverOftenItIsReferredTo)
{
    const QByteArray archive = instancesWithManyFields();
    const double start = cpuSeconds();
    EXPECT_TRUE(KeyedUnarchiver::unarchiveDictionary(archive).root);
    EXPECT_LT(cpuSeconds() - start, kMaxCpuSeconds);
}

TEST(HostileArchives, XmlThatIsNoPropertyListIsCorrupt)
{
    const qsizetype most = 32 * 1024 * 1024;
    const char* broken = "its XML is not well formed";
    const char* unpaired = "its XML does not pair keys with values";
    const auto plist = [](const QByteArray& content) {
        return [=] { return "<plist>" + content + "</plist>"; };
    };
    const HostileArchive cases[] = {
        {"another root", [] { return QByteArray("<svg/>"); }, "its XML is not a property list"},
        {"nothing inside", plist(""), "its XML holds no value"},
        {"two values", plist("<true/><true/>"), "its XML holds more than one value"},
        {"unknown element", plist("<blob/>"), "its XML has an unknown element"},
        {"text between", plist("<array>x</array>"), "its XML has text outside the values"},
        {"no key", plist("<dict><true/><true/></dict>"), unpaired},
        {"key in an array", plist("<array><key>a</key></array>"), unpaired},
        {"key without value", plist("<dict><key>a</key></dict>"), "its XML has a key without a value"},
        {"number", plist("<integer>12x</integer>"), "its XML has a number that is none"},
        {"real", plist("<real>1.5,</real>"), "its XML has a number that is none"},
        {"two signs", plist("<real>+-1</real>"), "its XML has a number that is none"},
        {"sign behind the base", plist("<integer>0x-5</integer>"), "its XML has a number that is none"},
        {"large number", plist("<integer>18446744073709551616</integer>"),
         "its XML has a number that is none"},
        {"data", plist("<data>A*==</data>"), "its XML has data that are not base64"},
        {"data cut", plist("<data>A</data>"), "its XML has data that are not base64"},
        {"only padding", plist("<data>====</data>"), "its XML has data that are not base64"},
        {"date", plist("<date>yesterday</date>"), "its XML has a date that is none"},
        {"date without a zone", plist("<date>2026-02-28T06:30:00</date>"), "its XML has a date that is none"},
        {"truth with a text", plist("<true>x</true>"), "its XML has a truth value with a text"},
        {"element of another namespace", plist("<x:string>x</x:string>"), "its XML has an unknown element"},
        {"unclosed", [] { return QByteArray("<plist><dict>"); }, broken},
        {"unknown entity", plist("<string>&lol;</string>"), broken},
        {"Latin-1", [] { return QByteArray("<?xml version='1.0' encoding='ISO-8859-1'?><plist/>"); },
         "its XML is not in UTF-8"},
        {"entities", [] { return QByteArray("<!DOCTYPE plist [<!ENTITY lol 'lol'>]><plist/>"); },
         "its XML has a DTD subset or a broken tag"},
        {"many attributes", [] { return manyAttributes(80'000); }, "its XML has a tag that is too long"},
        {"nesting", [=] { return repeated("<plist>", "<array>", most / 32); },
         "its XML is nested too deeply"},
        {"long text", [=] { return repeated("<plist><string>", "x", most - 100); },
         "its XML has a text of more than 16 MiB"},
        {"pieced text",
         [=] {
             return repeated("<plist><string>", "<![CDATA[xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx]]>", most);
         },
         "its XML has a text of more than 16 MiB"},
        {"many values", [=] { return repeated("<plist><array>", "<true/>", most / 3); },
         "its XML has more than 1,100,000 values"},
        {"many tags", [=] { return repeated("<plist><array>", "<true/>", most); },
         "its XML has more than four million tags"},
        {"many short texts", [=] { return repeated("<plist><array>", "<string>ab</string>", most / 4); },
         broken},
    };
    for (const HostileArchive& hostile : cases)
        expectCorrupt(hostile);
}

TEST(HostileArchives, ManyHonestPapersTakeMemoryInProportion)
{
    const QByteArray archive = test::honestArchive(30'000);
    KeyedUnarchiver::Result result;
    const std::size_t peak =
        test::peakMemoryOf([&] { result = KeyedUnarchiver::unarchiveDictionary(archive); });
    ASSERT_TRUE(result.root) << qPrintable(result.failure);
    EXPECT_EQ(result.root->size(), 30'000);
    EXPECT_EQ(result.root->value(QStringLiteral("Photo Paper 29999-r300"))
                  .toMap()
                  .value(QStringLiteral("paperWidth")),
              QVariant(qint64(30'999)));
    EXPECT_LT(peak, 10u * std::size_t(archive.size()));
}

} // namespace halvern
