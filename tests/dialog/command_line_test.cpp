// SPDX-License-Identifier: MIT
// halvern-print as a process: what it says and how it ends.
#include "tests/support/test.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace halvern {
namespace {

/// Without a display.
ProgramResult runPrint(const QStringList& arguments, const QString& server = QString())
{
    std::map<QByteArray, QByteArray> environment{{"DISPLAY", {}}, {"QT_QPA_PLATFORM", {}}};
    if (!server.isEmpty())
        environment["CUPS_SERVER"] = server.toUtf8();
    return runProgram(q(HALVERN_PRINT_PROGRAM), arguments, environment);
}

} // namespace

class CommandLineTest : public testing::Test {
protected:
    static void SetUpTestSuite() { makeTestPhoto(photo()); }

    static QString photo() { return folder.filePath(q("photo.png")); }

    inline static QTemporaryDir folder;
};

TEST_F(CommandLineTest, BadInputEndsInASentenceAndANonZeroStatus)
{
    const struct {
        QStringList arguments;
        int status;
        const char* words;
    } cases[] = {
        {{}, 2, "at least one photo"},
        {{q("--nonsense"), photo()}, 2, "nonsense"},
        {{q("--parent"), q("x11:none"), photo()}, 2, "names no window"},
        {{q("--result-json"), q("--no-dialog"), photo()}, 2, "go with the dialog"},
        {{q("--copies"), q("0"), photo()}, 2, "1 to 999"},
        {{q("--wait"), q("soon"), photo()}, 2, "seconds from 1"},
        {{q("--option"), q("PageSize"), photo()}, 2, "KEY=VALUE"},
        {{q("--json")}, 2, "goes with"},
        {{q("--server"), q("a b"), photo()}, 2, "no print server"},
        {{q("--ended"), photo()}, 2, "go with --jobs"},
        {{q("--jobs"), q("--move"), q("3")}, 2, "--to together"},
        {{q("--jobs"), q("--cancel"), q("-1")}, 2, "no job"},
        {{q("--list-options"), photo()}, 2, "--list-options prints no files"},
        {{q("--list-presets"), q("-o"), q("A=B")}, 2, "prints no files"},
        {{q("--save-preset"), q("last used")}, 2, "always there"},
        {{q("--preset"), q(" "), photo()}, 2, "no name of a preset"},
        {{q("--printer"), q(""), photo()}, 2, "name is empty"},
        {{q("--output"), folder.filePath(q("./photo.png")), photo()}, 2, "one of the files to print"},
        {{q("--output"), q(""), photo()}, 2, "write is empty"},
        {{q("--verify"), q("--dry-run"), photo()}, 2, "goes with --no-dialog"},
        {{folder.filePath(q("none.jpg")), folder.filePath(q("nor.jpg"))}, 1, "nor.jpg"},
        {{folder.filePath(q("none.jpg"))}, 1, "no file"},
        {{photo()}, 1, "no display"},
    };

    for (const auto& c : cases) {
        const ProgramResult result = runPrint(c.arguments);
        EXPECT_EQ(result.status, c.status) << c.words;
        EXPECT_TRUE(result.error.contains(q(c.words))) << c.words << " in: " << qPrintable(result.error);
        EXPECT_EQ(result.output, QString());
    }
    const std::map<QByteArray, QByteArray> dead{{"DISPLAY", ":4711"}, {"QT_QPA_PLATFORM", {}}};
    const ProgramResult help = runProgram(q(HALVERN_PRINT_PROGRAM), {q("--help")}, dead);
    EXPECT_TRUE(help.status == 0 && help.output.contains(q("  5  The job was sent")))
        << qPrintable(help.output);
    const ProgramResult window = runProgram(q(HALVERN_PRINT_PROGRAM), {photo()}, dead);
    const ProgramResult usage = runProgram(q(HALVERN_PRINT_PROGRAM), {q("--nonsense"), photo()}, dead);
    EXPECT_TRUE(usage.status == 2 && usage.error.contains(q("nonsense"))) << qPrintable(usage.error);
    EXPECT_TRUE(window.status == 1 && window.error.contains(q("display cannot be used")))
        << qPrintable(window.error);
    EXPECT_EQ(runPrint({q("--help-all")}).status, 0);
}

TEST_F(CommandLineTest, ADeadServerIsNamedWithTheWayToStartIt)
{
    const ProgramResult result = runPrint({q("--no-dialog"), photo()}, folder.filePath(q("no.sock")));
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.error.contains(q("systemctl start cups"))) << qPrintable(result.error);
}

TEST_F(CommandLineTest, PrintsDryRunsAndRefusesOnAServer)
{
    PrivateCups server;
    ASSERT_TRUE(server.addQueue(q("Tessarin"), {}, {}, {q("--default")}));
    const QStringList options{q("--option"), q("SharpnessIntensity=1.24"), q("--copies"), q("2")};

    const ProgramResult dry = runPrint(options + QStringList{q("--dry-run"), photo()});
    EXPECT_EQ(dry.status, 0) << qPrintable(dry.error);
    const QStringList lines = dry.output.split(u'\n');
    EXPECT_TRUE(lines.contains(q("SharpnessIntensity=1.24")) && lines.contains(q("copies=2")) &&
                lines.contains(q("PageSize=4x6")) && lines.contains(q("PaperFeed=Sheet")))
        << qPrintable(dry.output);

    const ProgramResult unknown = runPrint({q("--no-dialog"), q("--printer"), q("Nowhere"), photo()});
    EXPECT_EQ(unknown.status, 1);
    EXPECT_TRUE(unknown.error.contains(q("Nowhere")) && unknown.error.contains(q("It has: Tessarin")))
        << qPrintable(unknown.error);

    const ProgramResult beyond =
        runPrint({q("--no-dialog"), q("--option"), q("SharpnessIntensity=17"), photo()});
    EXPECT_EQ(beyond.status, 1);
    EXPECT_TRUE(beyond.error.contains(q("Intensity"))) << qPrintable(beyond.error);

    const ProgramResult text =
        runPrint({q("--no-dialog"), writeFile(folder.filePath(q("text.jpg")), "no picture")});
    EXPECT_EQ(text.status, 1);
    EXPECT_TRUE(text.error.contains(q("JPEG, PNG, TIFF, WebP, HEIF, AVIF or PDF"))) << qPrintable(text.error);

    QImage(photo()).save(folder.filePath(q("whole.jpg")));
    const QByteArray whole = readFile(folder.filePath(q("whole.jpg")));
    const QString cut = writeFile(folder.filePath(q("cut.jpg")), whole.first(whole.size() * 3 / 4));
    const ProgramResult damaged = runPrint({q("--no-dialog"), photo(), cut});
    EXPECT_EQ(damaged.status, 1);
    EXPECT_TRUE(damaged.error.contains(q("cut.jpg")) && damaged.error.contains(q("--print-damaged")))
        << qPrintable(damaged.error);
    EXPECT_EQ(runPrint({q("--dry-run"), q("--print-damaged"), cut}).status, 0);
    const QString list = writeFile(folder.filePath(q("list.txt")), cut.toUtf8() + '\n' + photo().toUtf8());
    const ProgramResult skipped =
        runPrint({q("--dry-run"), q("--skip-broken"), q("@") + list, q("/none.jpg")});
    EXPECT_EQ(skipped.status, 0) << qPrintable(skipped.error);
    EXPECT_TRUE(skipped.error.contains(q("cut.jpg")) && skipped.error.contains(q("none.jpg")))
        << qPrintable(skipped.error);
    EXPECT_EQ(runPrint({q("--dry-run"), q("--skip-broken"), cut}).status, 1) << "nothing is left";

    EXPECT_FALSE(server.receivedOptions(1)) << "none of these has made a job";
    const ProgramResult printed = runPrint(options + QStringList{q("--no-dialog"), photo()});
    EXPECT_EQ(printed.status, 0) << qPrintable(printed.error);
    EXPECT_TRUE(printed.output.startsWith(q("Printed: job 1"))) << qPrintable(printed.output);
    const auto received = server.receivedOptions(1);
    ASSERT_TRUE(received);
    EXPECT_EQ(received->at(q("SharpnessIntensity")), q("1.24"));

    const QString pdf = folder.filePath(q("pages.pdf"));
    const ProgramResult written = runPrint({q("--output"), pdf, photo()});
    EXPECT_TRUE(written.status == 0 && readFile(pdf).startsWith("%PDF")) << qPrintable(written.error);
    const ProgramResult nowhere = runPrint({q("--output"), folder.filePath(q("none/pages.pdf")), photo()});
    EXPECT_TRUE(nowhere.status == 1 && nowhere.error.contains(q("none/pages.pdf")))
        << qPrintable(nowhere.error);
    const ProgramResult full = runPrint({q("--output"), q("/dev/full"), photo()});
    EXPECT_EQ(full.status, 1) << qPrintable(full.output);
    EXPECT_FALSE(server.receivedOptions(2)) << "a file is no job";
}

TEST_F(CommandLineTest, VerifyTellsWhatTheQueueAddsHoweverTheJobEnds)
{
    PrivateCups server;
    ASSERT_TRUE(
        server.addQueue(q("Plain")) &&
        server.addQueue(q("Adding"), {}, {}, {q("--option"), q("printer-resolution-default=150dpi")}) &&
        server.addQueue(q("Stopped"), {}, {}, {q("--disabled")}));

    const struct {
        const char* queue;
        int status;
        const char* words;
    } cases[] = {{"Plain", 0, "exactly as it was sent"},
                 {"Adding", 6, "printer-resolution=150dpi"},
                 {"Stopped", 3, "exactly as it was sent"}};

    for (const auto& c : cases) {
        const ProgramResult result =
            runPrint({q("--no-dialog"), q("--verify"), q("-d"), q(c.queue), photo()});
        EXPECT_EQ(result.status, c.status) << c.queue << qPrintable(result.error);
        EXPECT_TRUE(result.error.contains(q(c.words))) << qPrintable(result.error);
    }
}

TEST_F(CommandLineTest, ListsAndPresetsNeedNoDisplayAndPrintNothing)
{
    PrivateCups server;
    ASSERT_TRUE(server.addQueue(q("Listed"), {}, {}, {q("--default"), q("--info"), q("Photo \"room\"")}));
    const auto listed = [](const QStringList& arguments) {
        const ProgramResult result = runPrint(arguments);
        EXPECT_EQ(result.status, 0) << qPrintable(arguments.join(u' ') + result.error);
        return result.output;
    };
    const auto json = [&](const QString& what, const QStringList& more = {}) {
        return QJsonDocument::fromJson(listed(more + QStringList{what, q("--json")}).toUtf8());
    };
    EXPECT_EQ(listed({q("--list-printers")}), q("Listed (default): Ready - Photo \"room\"\n"));
    EXPECT_EQ(json(q("--list-printers"))[0][q("description")].toString(), q("Photo \"room\""));
    listed({q("-o"), q("PageSize=A4"), q("-n"), q("2"), q("--save-preset"), q("Größe 4")});
    EXPECT_EQ(listed({q("--list-presets")}), q("Printer Defaults\nGröße 4\n"));
    EXPECT_EQ(json(q("--list-presets"))[1][q("changed")][0].toString(), q("PageSize"));
    const QStringList with{q("--preset"), q("Größe 4")};
    EXPECT_TRUE(listed(with + QStringList{q("--list-options")})
                    .startsWith(q("PageSize=A4 (default 4x6) \"Paper size\": 4x6 4x6.Fullbleed ")));
    const QJsonValue size = json(q("--list-options"), with)[q("options")][0];
    EXPECT_TRUE(size[q("current")].toString() == q("A4") && size[q("default")].toString() == q("4x6"));
    const QStringList lines = listed(with + QStringList{q("--dry-run"), photo()}).split(u'\n');
    EXPECT_TRUE(lines.contains(q("PageSize=A4")) && lines.contains(q("copies=2")));
    const ProgramResult unknown = runPrint({q("--dry-run"), q("--preset"), q("grösse 4"), photo()});
    EXPECT_TRUE(unknown.status == 1 && unknown.error.contains(q("Größe 4"))) << qPrintable(unknown.error);
    EXPECT_EQ(runPrint({q("-o"), q("page-ranges=zzz"), q("--save-preset"), q("Never")}).status, 1);
    listed({q("--orientation"), q("landscape"), q("--save-preset"), q("Wide")});
    ASSERT_TRUE(server.addQueue(q("Next")));
    EXPECT_EQ(listed({q("--list-presets"), q("-d"), q("Next")}),
              q("Printer Defaults\nGröße 4 (from Listed)\nWide (from Listed)\n"));
    EXPECT_EQ(json(q("--list-presets"))[2][q("page")][q("turn")].toString(), q("landscape"));

    const struct {
        QStringList words;
        const char* candidates;
    } completions[] = {{{q("--printer=L")}, "--printer=Listed\tPhoto \"room\"\n"},
                       {{q("-d"), q("Next"), q("-o"), q("PageS")}, "PageSize=\tPaper size\n"},
                       {{q("-o"), q("PageSize=A4")}, "PageSize=A4\tA4\n"},
                       {{q("--preset"), q("W")}, "Wide\n"},
                       {{q("--intent"), q("re"), q("--dry")},
                        "--dry-run\tWrite the options that would be sent, "
                        "one KEY=VALUE a line, and send nothing.\n"},
                       {{q("--"), q("--dry")}, "/\n"}};

    for (const auto& row : completions)
        EXPECT_EQ(listed(QStringList{q("--complete")} + row.words), q(row.candidates));
    EXPECT_FALSE(server.receivedOptions(1));
}

} // namespace halvern
