// halvern-print as a process: what it says and how it ends.
#include "tests/support/private_cups.h"

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace halvern {

namespace {

struct ProgramResult {
    int status = -1;
    QString out;
    QString err;
};

ProgramResult runProgram(const QStringList& arguments, const QString& server = QString())
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("DISPLAY"));
    environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
    if (!server.isEmpty())
        environment.insert(QStringLiteral("CUPS_SERVER"), server);
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(HALVERN_PRINT_PROGRAM), arguments);
    EXPECT_TRUE(program.waitForFinished(60000));
    return {program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1,
            QString::fromUtf8(program.readAllStandardOutput()),
            QString::fromUtf8(program.readAllStandardError())};
}

QString s(const char* text)
{
    return QString::fromUtf8(text);
}

} // namespace

class CommandLineTest : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        QImage image(300, 200, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        ASSERT_TRUE(image.save(photo()));
        QFile empty(folder.filePath(s("empty.jpg")));
        ASSERT_TRUE(empty.open(QIODevice::WriteOnly));
        QFile text(folder.filePath(s("text.jpg")));
        ASSERT_TRUE(text.open(QIODevice::WriteOnly));
        text.write("no picture");
    }

    static QString photo() { return folder.filePath(s("photo.png")); }

    inline static QTemporaryDir folder;
};

TEST_F(CommandLineTest, BadInputEndsInASentenceAndANonZeroStatus)
{
    struct Case {
        QStringList arguments;
        int status;
        const char* words;
    };

    const Case cases[] = {
        {{}, 2, "at least one photo"},
        {{s("--nonsense"), photo()}, 2, "nonsense"},
        {{s("--copies"), s("0"), photo()}, 2, "1 to 999"},
        {{s("--copies"), s("two"), photo()}, 2, "1 to 999"},
        {{s("--option"), s("PageSize"), photo()}, 2, "KEY=VALUE"},
        {{s("--printer"), s(""), photo()}, 2, "name is empty"},
        {{folder.filePath(s("none.jpg"))}, 1, "no file"},
        {{folder.path()}, 1, "folder"},
        {{s("--no-dialog"), folder.filePath(s("empty.jpg"))}, 1, "empty"},
        {{photo()}, 1, "no display"},
    };
    for (const Case& c : cases) {
        const ProgramResult result = runProgram(c.arguments);
        EXPECT_EQ(result.status, c.status) << c.words;
        EXPECT_TRUE(result.err.contains(s(c.words))) << c.words << " in: " << qPrintable(result.err);
        EXPECT_EQ(result.out, QString());
    }
    EXPECT_EQ(runProgram({s("--help")}).status, 0);
}

TEST_F(CommandLineTest, ADeadServerIsNamedWithTheWayToStartIt)
{
    const ProgramResult result = runProgram({s("--no-dialog"), photo()}, folder.filePath(s("no.sock")));
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.err.contains(s("systemctl start cups"))) << qPrintable(result.err);
}

TEST_F(CommandLineTest, PrintsDryRunsAndRefusesOnAServer)
{
    PrivateCups server;
    ASSERT_TRUE(server.isRunning()) << qPrintable(server.error());
    ASSERT_TRUE(server.addQueue(s("Tessarin"), {}, {}, {s("--default")}));
    const QStringList options{s("--option"), s("SharpnessIntensity=1.24"), s("--copies"), s("2")};

    const ProgramResult dry = runProgram(options + QStringList{s("--dry-run"), photo()});
    EXPECT_EQ(dry.status, 0) << qPrintable(dry.err);
    const QStringList lines = dry.out.split(u'\n');
    EXPECT_TRUE(lines.contains(s("SharpnessIntensity=1.24")) && lines.contains(s("copies=2")) &&
                lines.contains(s("PageSize=4x6")) && lines.contains(s("PaperFeed=Sheet")))
        << qPrintable(dry.out);

    const ProgramResult unknown = runProgram({s("--no-dialog"), s("--printer"), s("Nowhere"), photo()});
    EXPECT_EQ(unknown.status, 1);
    EXPECT_TRUE(unknown.err.contains(s("Nowhere")) && unknown.err.contains(s("It has: Tessarin")))
        << qPrintable(unknown.err);

    const ProgramResult beyond =
        runProgram({s("--no-dialog"), s("--option"), s("SharpnessIntensity=17"), photo()});
    EXPECT_EQ(beyond.status, 1);
    EXPECT_TRUE(beyond.err.contains(s("Intensity"))) << qPrintable(beyond.err);

    const ProgramResult text = runProgram({s("--no-dialog"), folder.filePath(s("text.jpg"))});
    EXPECT_EQ(text.status, 1);
    EXPECT_TRUE(text.err.contains(s("JPEG, PNG, TIFF or PDF"))) << qPrintable(text.err);

    EXPECT_FALSE(server.receivedOptions(1)) << "none of these has made a job";
    const ProgramResult printed = runProgram(options + QStringList{s("--no-dialog"), photo()});
    EXPECT_EQ(printed.status, 0) << qPrintable(printed.err);
    EXPECT_TRUE(printed.out.startsWith(s("Printed: job 1"))) << qPrintable(printed.out);
    const auto received = server.receivedOptions(1);
    ASSERT_TRUE(received);
    EXPECT_EQ(received->at(s("SharpnessIntensity")), s("1.24"));
}

} // namespace halvern
