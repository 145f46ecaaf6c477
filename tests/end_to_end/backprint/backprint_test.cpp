// Lines typed into the Backprint page of the real dialog, printed on a real server.
#include "dialog/message_bar.h"
#include "dialog/plugin_loader.h"
#include "tests/end_to_end/backprint/back_of_picture.h"
#include "tests/support/observers.h"
#include "tests/support/real_dialog.h"

#include <QFile>
#include <QProcess>
#include <QTest>

namespace halvern {

namespace {

QString u(const char* text)
{
    return QString::fromUtf8(text);
}

} // namespace

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
    struct Case {
        QString typed[2];
        QString stored[2];
        QStringList printed;
    };

    const Case cases[] = {
        {{longestLine(), u("true")}, {longestLineStored(), u("true")}, {longestLine() + u(" "), u("true")}},
        {{u("{[YYYY] Resolution=300dpi"), u("She \"said\"  'it\\'s', a=b \\")},
         {u("{[YYYY] Resolution=300dpi"), u("She \"said\"  æit\\æsæ≤ a=b \\ ")},
         {u("{[YYYY] Resolution=300dpi"), u("She \"said\"  'it\\'s', a=b \\ ")}},
    };
    open({u("Tessarin"), {resolution()}, {photo()}});
    for (const Case& c : cases) {
        SCOPED_TRACE(qPrintable(c.typed[0]));
        for (int number : {2, 1})
            type(number, c.typed[number - 1]);
        ASSERT_EQ(longestLineStored().toUtf8().size(), 300);
        const int job = print();
        EXPECT_EQ(received(job, "CVP1"), c.stored[0]);
        EXPECT_EQ(received(job, "CVP2"), c.stored[1]);
        EXPECT_EQ(received(job, "EnableCVP1"), u("True"));
        EXPECT_EQ(received(job, "Resolution"), u("360dpi"));
        expectBack(job, c.printed);
    }
}

TEST_F(BackprintInDialog, EmptyAndSwitchedOffLinesPrintNothing)
{
    open({u("Tessarin"), {resolution()}, {photo()}});
    type(1, u(""));
    expectBack(print(), {});
    type(1, u("not this one"));
    type(2, u("only this one"));
    switchLine(1, false);
    expectBack(print(), {u("only this one")});
    switchLine(2, false);
    const int job = print();
    EXPECT_EQ(received(job, "EnableCVP2"), u("False"));
    EXPECT_EQ(received(job, "CVP2"), u("only this one"));
    expectBack(job, {});
}

TEST_F(BackprintInDialog, WhatTheUserAndTheQueueHaveSavedIsShownAndPrinted)
{
    QFile saved(QFile::decodeName(qgetenv("CUPS_SERVERROOT")) + u("/lpoptions"));
    ASSERT_TRUE(saved.open(QIODevice::WriteOnly));
    saved.write("Dest Tessarin EnableCVP1=True CVP1=Lisbon\\ 2024≤\\ day\\ 1 DebugLog=True\n");
    saved.close();
    ASSERT_EQ(QProcess::execute(u("lpadmin"), {u("-p"), u("Tessarin"), u("-o"), u("CVP2-default=Queue")}), 0);
    open({u("Tessarin"), {{u("EnableCVP2"), u("True")}, resolution()}, {photo()}});
    EXPECT_EQ(line(1)->text(), u("Lisbon 2024, day 1"));
    EXPECT_TRUE(line(1)->isEnabled());
    int job = print();
    EXPECT_EQ(received(job, "DebugLog"), u("True"));
    expectBack(job, {u("Lisbon 2024, day 1"), u("Queue")});
    switchLine(1, false);
    job = print();
    EXPECT_EQ(received(job, "EnableCVP1"), u("False")) << "the click is later than what was saved";
    expectBack(job, {u("Queue")});
    EXPECT_TRUE(saved.remove());
    ASSERT_EQ(QProcess::execute(u("lpadmin"), {u("-p"), u("Tessarin"), u("-R"), u("CVP2-default")}), 0);
}

TEST_F(BackprintInDialog, ALineGivenToTheProgramStandsInThePage)
{
    SessionRequest request{u("Tessarin"), {{u("TwoSided"), u("LongEdge")}, resolution()}, {photo()}};
    request.backLines = {u("Smithæs≤ Inc.")};
    open(request);
    EXPECT_EQ(line(1)->text(), u("Smith's, Inc."));
    EXPECT_TRUE(real->button(512)->isChecked());
    EXPECT_FALSE(real->button(513)->isChecked());
    EXPECT_EQ(real->session.model()->value(u("TwoSided")), u("None")) << "a second picture would be there";
    line(1)->setFocus();
    QTest::keyClick(line(1), Qt::Key_End);
    QTest::keyClicks(line(1), u(" '26"));
    real->session.undoLastChange();
    EXPECT_EQ(real->session.model()->value(u("TwoSided")), u("LongEdge"));
    EXPECT_TRUE(waitUntil([&] { return !real->button(512)->isChecked(); }));
    EXPECT_EQ(line(1)->text(), u("Smith's, Inc. '26")) << "undoing takes no typed text away";
    switchLine(1, true);
    expectBack(print(), {u("Smith's, Inc. '26")});
}

TEST_F(BackprintInDialog, APrinterThatPrintsNoLinesSaysSoUntilAnotherIsChosen)
{
    SessionRequest request{u("Tessarin"), {resolution()}, {photo()}};
    request.backLines = {u("text")};
    open(request);
    type(2, u("gone with its printer"));
    real->session.selectPrinter(u("Plain"));
    ASSERT_TRUE(waitUntil([&] { return real->session.canPrint(); }, 60));
    EXPECT_TRUE(real->session.backLinesProblem().contains(u("Plain")));
    EXPECT_EQ(real->dialog.findChild<MessageBar*>()->text(), real->session.backLinesProblem());
    real->session.selectPrinter(u("Tessarin"));
    ASSERT_TRUE(waitUntil([&] { return real->session.canPrint(); }, 60));
    EXPECT_EQ(real->session.backLinesProblem(), QString());
    EXPECT_EQ(real->dialog.findChild<MessageBar*>()->text(), QString());
    ASSERT_TRUE(real->showPage("com.halvern.print.pde.cvp"));
    EXPECT_EQ(line(1)->text(), u("text"));
    EXPECT_EQ(line(2)->text(), QString());
    type(2, u("new"));
    expectBack(print(), {u("text"), u("new")});
}

} // namespace halvern
