// SPDX-License-Identifier: MIT
// Lines typed into the Backprint page of the real dialog, printed on a real server.
#include "dialog/job/job_command.h"
#include "dialog/session/plugin_loader.h"
#include "dialog/window/message_bar.h"
#include "tests/end_to_end/backprint/back_of_picture.h"
#include "tests/support/real_dialog.h"

namespace halvern {

class BackprintInDialog : public BackOfPicture {
protected:
    void open(SessionRequest request)
    {
        // What the printer would answer meanwhile changes the resolution, and with it the size of the pages.
        request.panelsAskPrinter = false;
        real = std::make_unique<RealDialog>(request, plugIns);
        ASSERT_TRUE(real->isReady());
        ASSERT_TRUE(real->showPage("com.halvern.print.pde.cvp"));
    }

    QLineEdit* line(int number) const { return real->field(number); }

    void switchLine(int number, bool on) { real->setOn(511 + number, on); }

    void type(int number, const QString& text)
    {
        switchLine(number, true);
        real->type(number, text);
    }

    // The focus stays in the line, whose editing has not ended.
    int print() { return real->printByKey(); }

    PluginLoader plugIns;
    std::unique_ptr<RealDialog> real;
};

TEST_F(BackprintInDialog, TypedLinesArriveByteForByteAndArePrintedAsTheyWereTyped)
{
    const struct {
        QString typed[2];
        QString stored[2];
        QStringList printed;
    } cases[] = {
        {{longestLine(), q("true")}, {longestLineStored(), q("true")}, {longestLine() + q(" "), q("true")}},
        {{q("{[YYYY] Resolution=300dpi"), q("She \"said\"  'it\\'s', a=b \\")},
         {q("{[YYYY] Resolution=300dpi"), q("She \"said\"  æit\\æsæ≤ a=b \\ ")},
         {q("{[YYYY] Resolution=300dpi"), q("She \"said\"  'it\\'s', a=b \\ ")}},
    };

    open({q("Tessarin"), {resolution()}, {photo()}});
    for (const auto& c : cases) {
        SCOPED_TRACE(qPrintable(c.typed[0]));
        for (int number : {2, 1})
            type(number, c.typed[number - 1]);
        ASSERT_EQ(longestLineStored().toUtf8().size(), 300);
        const int job = print();
        EXPECT_EQ(received(job, "CVP1"), c.stored[0]);
        EXPECT_EQ(received(job, "CVP2"), c.stored[1]);
        EXPECT_EQ(received(job, "EnableCVP1"), q("True"));
        EXPECT_EQ(received(job, "Resolution"), q("360dpi"));
        expectBack(job, c.printed);
    }
}

TEST_F(BackprintInDialog, TheCopiedCommandSendsWhatIsShown)
{
    open({q("Tessarin"), {resolution()}, {photo()}});
    type(1, q("She \"said\" 'it\\'s' $HOME `id` {x} [YYYY]"));
    type(2, q("two"));
    switchLine(2, false);
    ASSERT_TRUE(real->session.changeOption(q("PaperTone"), q("Vivid")));
    ASSERT_TRUE(real->session.changeOption(q("Overspill"), q("1.5")));
    PageSettings page = real->session.page();
    page.copies = 3;
    page.isCollated = false;
    page.title = q("-My 'lake'");
    page.turn = PageTurn::landscape;
    page.scaling = Scaling::fill;
    real->session.setPage(page);
    real->session.setPlacement(0, {{0.25, 1.0}, 1.5, 1, 2});
    drainMainQueue(); // the panels are told
    const QByteArray path = QFileInfo(q(HALVERN_PRINT_PROGRAM)).path().toUtf8() + ':' + qgetenv("PATH");
    const QString command = real->session.command();
    const ProgramResult again =
        runProgram(q("/bin/sh"), {q("-c"), command + q(" --dry-run")}, {{"PATH", path}});
    ASSERT_EQ(again.status, 0) << qPrintable(again.error);
    QStringList sent;
    for (const OptionValue& option : real->session.collectOptions())
        sent.append(option.key + u'=' + option.value);
    EXPECT_EQ(again.output.trimmed().split(u'\n').join(u'|').toStdString(), sent.join(u'|').toStdString())
        << qPrintable(command);
    EXPECT_TRUE(command.contains(
        q(" --orientation landscape --position 0.25,1 --zoom 1.5 --turn 90 --photo-copies 2 ")))
        << qPrintable(command);
    for (const char* word : {"a\x1b%'\\\nb", "--job-title=a\tb", "two feeds\n\n", "\n"}) {
        const ProgramResult said =
            runProgram(q("/bin/sh"), {q("-c"), q("printf %s ") + shellQuoted(q(word))});
        EXPECT_EQ(said.output, q(word)) << qPrintable(said.error);
    }
}

TEST_F(BackprintInDialog, EmptyAndSwitchedOffLinesPrintNothing)
{
    open({q("Tessarin"), {resolution()}, {photo()}});
    type(1, q(""));
    expectBack(print(), {});
    type(1, q("not this one"));
    type(2, q("only this one"));
    switchLine(1, false);
    expectBack(print(), {q("only this one")});
    switchLine(2, false);
    const int job = print();
    EXPECT_EQ(received(job, "EnableCVP2"), q("False"));
    EXPECT_EQ(received(job, "CVP2"), q("only this one"));
    expectBack(job, {});
}

TEST_F(BackprintInDialog, WhatTheUserAndTheQueueHaveSavedIsShownAndPrinted)
{
    QFile saved(QFile::decodeName(qgetenv("CUPS_SERVERROOT")) + q("/lpoptions"));
    ASSERT_TRUE(saved.open(QIODevice::WriteOnly));
    saved.write("Dest Tessarin EnableCVP1=True CVP1=Lisbon\\ 2024≤\\ day\\ 1 DebugLog=True\n");
    saved.close();
    ASSERT_EQ(QProcess::execute(q("lpadmin"), {q("-p"), q("Tessarin"), q("-o"), q("CVP1-default=Not this"),
                                               q("-o"), q("CVP2-default=Queue")}),
              0);
    open({q("Tessarin"), {{q("EnableCVP2"), q("True")}, resolution()}, {photo()}});
    EXPECT_EQ(line(1)->text(), q("Lisbon 2024, day 1"));
    EXPECT_TRUE(line(1)->isEnabled());
    int job = print();
    EXPECT_EQ(received(job, "DebugLog"), q("True"));
    expectBack(job, {q("Lisbon 2024, day 1"), q("Queue")});
    switchLine(1, false);
    job = print();
    EXPECT_EQ(received(job, "EnableCVP1"), q("False")) << "the click is later than what was saved";
    expectBack(job, {q("Queue")});
    EXPECT_TRUE(saved.remove());
    ASSERT_EQ(QProcess::execute(q("lpadmin"), {q("-p"), q("Tessarin"), q("-R"), q("CVP1-default"), q("-R"),
                                               q("CVP2-default")}),
              0);
}

TEST_F(BackprintInDialog, ALineGivenToTheProgramStandsInThePage)
{
    SessionRequest request{q("Tessarin"), {{q("TwoSided"), q("LongEdge")}, resolution()}, {photo()}};
    request.backLines = {q("Smithæs≤ Inc.")};
    open(request);
    EXPECT_EQ(line(1)->text(), q("Smith's, Inc."));
    EXPECT_TRUE(real->button(512)->isChecked());
    EXPECT_FALSE(real->button(513)->isChecked());
    EXPECT_EQ(real->session.model()->value(q("TwoSided")), q("None")) << "a second picture would be there";
    line(1)->setFocus();
    QTest::keyClick(line(1), Qt::Key_End);
    QTest::keyClicks(line(1), q(" '26"));
    real->session.undoLastChange();
    EXPECT_EQ(real->session.model()->value(q("TwoSided")), q("LongEdge"));
    EXPECT_TRUE(waitUntil([&] { return !real->button(512)->isChecked(); }));
    EXPECT_EQ(line(1)->text(), q("Smith's, Inc. '26")) << "undoing takes no typed text away";
    switchLine(1, true);
    expectBack(print(), {q("Smith's, Inc. '26")});
}

TEST_F(BackprintInDialog, APrinterThatPrintsNoLinesSaysSoUntilAnotherIsChosen)
{
    SessionRequest request{q("Tessarin"), {resolution()}, {photo()}};
    request.backLines = {q("text")};
    open(request);
    type(2, q("gone with its printer"));
    real->session.selectPrinter(q("Plain"));
    ASSERT_TRUE(waitUntil([&] { return real->session.canPrint(); }));
    EXPECT_TRUE(real->session.backLinesProblem().contains(q("Plain")));
    EXPECT_EQ(real->dialog.findChild<MessageBar*>()->text(), real->session.backLinesProblem());
    real->session.selectPrinter(q("Tessarin"));
    ASSERT_TRUE(waitUntil([&] { return real->session.canPrint(); }));
    EXPECT_EQ(real->session.backLinesProblem(), QString());
    EXPECT_EQ(real->dialog.findChild<MessageBar*>()->text(), QString());
    ASSERT_TRUE(real->showPage("com.halvern.print.pde.cvp"));
    EXPECT_EQ(line(1)->text(), q("text"));
    EXPECT_EQ(line(2)->text(), QString());
    type(2, q("new"));
    expectBack(print(), {q("text"), q("new")});
}

} // namespace halvern
