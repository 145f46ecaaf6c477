// SPDX-License-Identifier: MIT
// Lines given to halvern-print as a process.
#include "tests/end_to_end/backprint/back_of_picture.h"

#include <QRegularExpression>

namespace halvern {
namespace {

ProgramResult runPrint(const QStringList& arguments)
{
    return runProgram(q(HALVERN_PRINT_PROGRAM), arguments);
}

int jobOf(const ProgramResult& ended)
{
    return QRegularExpression(q("job (\\d+)")).match(ended.output).captured(1).toInt();
}

} // namespace

class BackprintByProgram : public BackOfPicture {};

TEST_F(BackprintByProgram, PrintsTheLinesAsIfTheyHadBeenTyped)
{
    const ProgramResult ended =
        runPrint({q("--no-dialog"), q("--option"), q("Resolution=360dpi"), q("--backprint"), longestLine(),
                  q("--backprint"), q("true"), photo()});
    ASSERT_EQ(ended.status, 0) << qPrintable(ended.error);
    EXPECT_FALSE(ended.error.contains(q("left out"))) << qPrintable(ended.error);
    EXPECT_EQ(received(jobOf(ended), "CVP1"), longestLineStored());
    EXPECT_EQ(received(jobOf(ended), "CVP2"), q("true"));
    expectBack(jobOf(ended), {longestLine() + q(" "), q("true")});
}

TEST_F(BackprintByProgram, SaysWhatALineCannotHold)
{
    const QString text = q("Café ~ œuvre\n") + QString(130, u'x');
    const ProgramResult ended =
        runPrint({q("--dry-run"), q("--backprint"), q("fine"), q("--backprint"), text, photo()});
    EXPECT_EQ(ended.status, 0);
    const QStringList lines = ended.output.split(u'\n');
    EXPECT_TRUE(lines.contains(q("CVP1=fine")) && lines.contains(q("EnableCVP2=True")))
        << qPrintable(ended.output);
    EXPECT_TRUE(lines.contains(q("CVP2=Caf  uvre") + QString(111, u'x'))) << qPrintable(ended.output);
    EXPECT_TRUE(ended.error.contains(q("line 2 cannot hold \"é\", \"~\", \"œ\", U+000A, which")))
        << qPrintable(ended.error);
    EXPECT_TRUE(ended.error.contains(q("longer than 120 characters")) && ended.error.contains(q("(19)")))
        << qPrintable(ended.error);
    EXPECT_FALSE(ended.error.contains(q("line 1"))) << qPrintable(ended.error);
}

TEST_F(BackprintByProgram, AThirdLineAndAPrinterWithoutLinesAreRefused)
{
    const QStringList one{q("--backprint"), q("text")};
    const ProgramResult three = runPrint(one + one + one + QStringList{photo()});
    EXPECT_EQ(three.status, 2);
    EXPECT_TRUE(three.error.contains(q("once or twice"))) << qPrintable(three.error);
    EXPECT_TRUE(runPrint({q("--help")}).output.contains(q("--backprint <TEXT>")));

    for (const char* mode : {"--dry-run", "--no-dialog"}) {
        const ProgramResult plain = runPrint(one + QStringList{q(mode), q("--printer"), q("Plain"), photo()});
        EXPECT_EQ(plain.status, 1);
        EXPECT_EQ(plain.output, QString());
        EXPECT_TRUE(plain.error.contains(q("\"Plain\" prints no text on the back")))
            << qPrintable(plain.error);
    }
}

} // namespace halvern
