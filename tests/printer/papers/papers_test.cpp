// SPDX-License-Identifier: MIT
#include "platform/foundation/archive/keyed_unarchiver.h"
#include "platform/printing/ppd.h"
#include "printer/papers/catalogue_archive.h"
#include "printer/papers/catalogue_json.h"
#include "printer/papers/paper_list.h"
#include "printer/papers/ppd_archive.h"
#include "printer/papers/ppd_catalogue.h"
#include "tests/support/test.h"

#include <QBuffer>

namespace halvern {
namespace {

const QByteArray kTwoPapers = R"({"papers": [
    {"sheet": "Gloss <A4> 紙", "width": 210, "surface": 1, "resolutions": [300, 610.5], "tones": [1, 32]},
    {"roll": 152.4, "surfaces": [1, 3], "resolutions": [300], "note": "by the window"}]})";

const QByteArray kPpd = "*PPD-Adobe: \"4.3\"\n"
                        "*ModelName: \"Test\"\n"
                        "*vlxduplex: \"False\"\n"
                        "*Code: \"first\n"
                        "*VLXPapersKnown00000: no statement\n"
                        "last\"\n"
                        "*End\n"
                        "*VLXPapersKnownBest: \"kept\"\n"
                        "*Last: \"without an end of line\"";

QByteArray standardList()
{
    return readFile(q(HALVERN_PAPER_LISTS "/standard.json"));
}

QString written(const QTemporaryDir& folder, const char* name, const QByteArray& content)
{
    return writeFile(folder.filePath(QString::fromLatin1(name)), content);
}

PaperList listOf(const QByteArray& json)
{
    const PaperListResult result = readPaperList(json);
    EXPECT_TRUE(result.list) << qPrintable(result.failure);
    return result.list.value_or(PaperList());
}

QVariantMap recordOf(const PaperList& list, const char* key)
{
    return list.records.value(QString::fromUtf8(key)).toMap();
}

QByteArray jsonOf(const QVariantMap& catalogue)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    writeCatalogueJson(catalogue, buffer);
    return buffer.data();
}

ProgramResult run(const QStringList& arguments)
{
    return runProgram(q(HALVERN_PAPERS), arguments);
}

} // namespace

TEST(PaperListTest, SheetsAndRollsExpandToOneRecordAResolution)
{
    const PaperList list = listOf(kTwoPapers);
    EXPECT_EQ(list.records.keys(), (QStringList{q("Gloss <A4> 紙-r300"), q("Gloss <A4> 紙-r610"),
                                                q("w1524s1r300"), q("w1524s3r300")}));
    EXPECT_EQ(recordOf(list, "Gloss <A4> 紙-r610"), (QVariantMap{{q("paperName"), q("Gloss <A4> 紙")},
                                                                 {q("paperWidth"), 2100},
                                                                 {q("paperSurface"), 1},
                                                                 {q("paperResolution"), 6105},
                                                                 {q("paperTone"), 0x80000001u}}));
    EXPECT_EQ(recordOf(list, "w1524s3r300"), (QVariantMap{{q("paperWidth"), 1524},
                                                          {q("paperSurface"), 3},
                                                          {q("paperResolution"), 3000},
                                                          {q("paperTone"), 0}}));
    EXPECT_FALSE(list.duplex || list.extraFeatures);
}

TEST(PaperListTest, FaultsAreNamedWithTheirPlaceAndARemedy)
{
    const struct {
        const char* json;
        const char* failure;
    } cases[] = {
        {"{\n \"papers\": [x]}", "line 2, near column 12: this is not JSON: illegal number"},
        {R"({"papers": []})", "papers: give a list of papers with at least one, or a map of records by key"},
        {R"([{"name": "A4"}])",
         "papers[0]: give each paper either \"sheet\" with its name or \"roll\" with its width"},
        {R"([{"sheet": "A", "resolutions": [300], "color": 1}])",
         "papers[0]: \"color\" is not known here; use sheet, width, surface, resolutions, tones, note"},
        {R"([{"roll": 152.45, "surfaces": [1], "resolutions": [300]}])",
         "papers[0].roll: give millimetres with at most one decimal place, such as 152.4"},
        {R"([{"roll": 152, "surfaces": [1], "resolutions": [300, 300.4]}])",
         "papers[0].resolutions[1]: makes the record \"w1520s1r300\" once more; papers[0].resolutions[0] has "
         "made it "
         "already. Take one out"},
        {R"([{"roll": 152, "surfaces": [1], "resolutions": [300], "tones": [33]}])",
         "papers[0].tones[0]: give a tone from 1 to 32"},
        {R"({"abilities": {"duplex": true}})", "abilities: give the papers too, as \"papers\""},
        {R"({"w1s1r1": {"paperWidth": -1}})", "w1s1r1.paperWidth: give a number that is not below zero"},
    };

    for (const auto& wrong : cases)
        EXPECT_EQ(readPaperList(wrong.json).failure.toStdString(), wrong.failure) << wrong.json;
}

TEST(PaperArchiveTest, WhatIsPackedIsReadAgain)
{
    for (const QByteArray& json : {kTwoPapers, standardList(), QByteArray("{}")}) {
        const QVariantMap records = listOf(json).records;
        const auto result = KeyedUnarchiver::unarchiveDictionary(archiveOfCatalogue(records));
        ASSERT_TRUE(result.root) << qPrintable(result.failure);
        EXPECT_EQ(*result.root, records);
        EXPECT_EQ(listOf(jsonOf(*result.root)).records, records);
    }
}

TEST(PaperPpdTest, TheRunIsWrittenReplacedAndShortened)
{
    const QTemporaryDir folder;
    const PaperList many = listOf(standardList());
    const PaperList few = listOf(kTwoPapers);
    const QByteArray longer = ppdWithAttributes(kPpd, attributesOf(many));
    EXPECT_TRUE(longer.contains("\n*VLXPapersKnown0000a: \""));
    for (const QByteArray& line : longer.split('\n'))
        EXPECT_LT(line.size(), 255);

    EXPECT_EQ(archiveInPpd(written(folder, "long.ppd", longer)).bytes, archiveOfCatalogue(many.records));
    const QByteArray shorter = ppdWithAttributes(longer, attributesOf(few));
    EXPECT_EQ(archiveInPpd(written(folder, "short.ppd", shorter)).bytes, archiveOfCatalogue(few.records));
    EXPECT_EQ(shorter.count("*VLXPapersKnown0"), attributesOf(few).size() + 1);

    const ppd::File file = ppd::open(folder.filePath(q("long.ppd")));
    EXPECT_EQ(ppd::attribute(file.get(), q("VLXDuplex")), q("True"));
    EXPECT_EQ(longer.toLower().count("*vlxduplex:"), 1);
}

TEST(PaperPpdTest, EverythingElseInThePpdStaysAsItWas)
{
    const QList<PpdAttribute> attributes = attributesOf(listOf(kTwoPapers));
    const QByteArray once = ppdWithAttributes(kPpd, attributes);
    EXPECT_EQ(once, kPpd + '\n' + ppdLines(attributes));
    EXPECT_EQ(ppdWithAttributes(once + "*After: \"run\"\n", attributes), once + "*After: \"run\"\n");

    QByteArray dos = kPpd;
    dos.replace("\n", "\r\n");
    EXPECT_EQ(ppdWithAttributes(dos, attributes), dos + "\r\n" + ppdLines(attributes, "\r\n"));

    const QByteArray old = "*PPD-Adobe: \"4.3\"\n*VLXPapersKnown00000: \"ab\ncd\"\n*End\n*After: \"x\"\n";
    EXPECT_EQ(ppdWithAttributes(old, attributes),
              "*PPD-Adobe: \"4.3\"\n" + ppdLines(attributes) + "*After: \"x\"\n");
}

TEST(PapersProgramTest, PacksIntoAPpdAndShowsWhatIsThere)
{
    const QTemporaryDir folder;
    const QString ppd = written(folder, "queue.ppd", kPpd);
    QFile::setPermissions(ppd, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
    const auto permissions = QFile::permissions(ppd);
    const ProgramResult packed =
        run({q("pack"), written(folder, "papers.json", kTwoPapers), q("--ppd"), ppd});
    EXPECT_EQ(packed.status, 0) << qPrintable(packed.error);
    EXPECT_EQ(packed.output, QString());
    EXPECT_EQ(QFile::permissions(ppd), permissions);
    const ProgramResult shown = run({q("show"), ppd});
    EXPECT_EQ(shown.status, 0);
    EXPECT_EQ(shown.output.toUtf8(), jsonOf(listOf(kTwoPapers).records));
}

TEST(PapersProgramTest, MistakesAreExplainedAndChangeNothing)
{
    const QTemporaryDir folder;
    const QString json = written(folder, "papers.json", kTwoPapers);
    const QString text = written(folder, "notes.txt", "hello");
    const QString pack = q("pack");
    const QString show = q("show");
    const QString ppd = q("--ppd");
    const QByteArray archive = archiveOfCatalogue(listOf(kTwoPapers).records);
    const QByteArray noBase64 = kPpd + "\n*VLXPapersKnown00000: \"!?\"\n";

    const struct {
        QStringList arguments;
        int status;
        const char* words;
    } cases[] = {
        {{}, 2, "--help"},
        {{pack, json, ppd, text, q("--archive")}, 2, "one of --ppd"},
        {{pack, json, q("--pdp"), text}, 2, "pdp"},
        {{pack, folder.filePath(q("none.json"))}, 1, "No such file"},
        {{q("take-out"), json, q("127")}, 1, "no paper \"127\" is loaded"},
        {{q("load"), json, q("127")}, 2, "--stock"},
        {{q("load"), json, q("x"), q("--stock"), json}, 1, "has no paper"},
        {{pack, text}, 1, "line 1, near column 1: this is not JSON"},
        {{pack, json, ppd, text}, 1, "is not a PPD file"},
        {{pack, written(folder, "deep.json",
                        "{\"w\": {\"l\": " + QByteArray(70, '[') + QByteArray(70, ']') + "}}")},
         1,
         "no dialog would read"},
        {{show, written(folder, "cut.plist", archive.first(archive.size() / 2))}, 1, "corrupt: "},
        {{show, written(folder, "no-base64.ppd", noBase64)}, 1, "corrupt: "},
        {{show, written(folder, "bare.ppd", kPpd)}, 1, "holds no papers"},
        {{show, written(folder, "broken.ppd", "*PPD-Adobe: \"4.3\"\n" + QByteArray(300, 'x'))}, 1, "line 2"},
    };

    for (const auto& mistake : cases) {
        const ProgramResult finished = run(mistake.arguments);
        EXPECT_EQ(finished.status, mistake.status);
        EXPECT_TRUE(finished.error.contains(QLatin1StringView(mistake.words))) << qPrintable(finished.error);
        EXPECT_EQ(finished.output, QString());
    }
    EXPECT_EQ(readFile(text), QByteArray("hello"));
}

} // namespace halvern
