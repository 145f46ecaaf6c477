// Lines given to halvern-print as a process.
#include "tests/end_to_end/backprint/back_of_picture.h"

#include <QProcess>
#include <QRegularExpression>

namespace halvern {

namespace {

struct Ended {
    int status = -1;
    QString out;
    QString err;
};

Ended runPrint(const QStringList& arguments)
{
    QProcess program;
    program.start(QStringLiteral(HALVERN_PRINT_PROGRAM), arguments);
    EXPECT_TRUE(program.waitForFinished(60000));
    return {program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1,
            QString::fromUtf8(program.readAllStandardOutput()),
            QString::fromUtf8(program.readAllStandardError())};
}

QString w(const char* text)
{
    return QString::fromUtf8(text);
}

int jobOf(const Ended& ended)
{
    return QRegularExpression(w("job (\\d+)")).match(ended.out).captured(1).toInt();
}

} // namespace

class BackprintByProgram : public BackOfPicture {};

TEST_F(BackprintByProgram, PrintsTheLinesAsIfTheyHadBeenTyped)
{
    const Ended ended = runPrint({w("--no-dialog"), w("--option"), w("Resolution=360dpi"), w("--backprint"),
                                  longestLine(), w("--backprint"), w("true"), photo()});
    ASSERT_EQ(ended.status, 0) << qPrintable(ended.err);
    EXPECT_FALSE(ended.err.contains(w("left out"))) << qPrintable(ended.err);
    EXPECT_EQ(received(jobOf(ended), "CVP1"), longestLineStored());
    EXPECT_EQ(received(jobOf(ended), "CVP2"), w("true"));
    expectBack(jobOf(ended), {longestLine() + w(" "), w("true")});
}

TEST_F(BackprintByProgram, SaysWhatALineCannotHold)
{
    const QString text = w("Café ~ œuvre\n") + QString(130, QLatin1Char('x'));
    const Ended ended =
        runPrint({w("--dry-run"), w("--backprint"), w("fine"), w("--backprint"), text, photo()});
    EXPECT_EQ(ended.status, 0);
    const QStringList lines = ended.out.split(QLatin1Char('\n'));
    EXPECT_TRUE(lines.contains(w("CVP1=fine")) && lines.contains(w("EnableCVP2=True")))
        << qPrintable(ended.out);
    EXPECT_TRUE(lines.contains(w("CVP2=Caf  uvre") + QString(111, QLatin1Char('x'))))
        << qPrintable(ended.out);
    EXPECT_TRUE(ended.err.contains(w("line 2 cannot hold \"é\", \"~\", \"œ\", U+000A, which")))
        << qPrintable(ended.err);
    EXPECT_TRUE(ended.err.contains(w("longer than 120 characters")) && ended.err.contains(w("(19)")))
        << qPrintable(ended.err);
    EXPECT_FALSE(ended.err.contains(w("line 1"))) << qPrintable(ended.err);
}

TEST_F(BackprintByProgram, AThirdLineAndAPrinterWithoutLinesAreRefused)
{
    const QStringList one{w("--backprint"), w("text")};
    const Ended three = runPrint(one + one + one + QStringList{photo()});
    EXPECT_EQ(three.status, 2);
    EXPECT_TRUE(three.err.contains(w("once or twice"))) << qPrintable(three.err);
    EXPECT_TRUE(runPrint({w("--help")}).out.contains(w("--backprint <TEXT>")));

    for (const char* mode : {"--dry-run", "--no-dialog"}) {
        const Ended plain = runPrint(one + QStringList{w(mode), w("--printer"), w("Plain"), photo()});
        EXPECT_EQ(plain.status, 1);
        EXPECT_EQ(plain.out, QString());
        EXPECT_TRUE(plain.err.contains(w("\"Plain\" prints no text on the back"))) << qPrintable(plain.err);
    }
}

} // namespace halvern
