// SPDX-License-Identifier: MIT
#include "tests/panels/backprint/backprint_window.h"

#include <QInputMethodEvent>

namespace halvern {
namespace {

void compose(QLineEdit* field, const QString& preedit, const QString& commit)
{
    QInputMethodEvent event(preedit, {});
    event.setCommitString(commit);
    QApplication::sendEvent(field, &event);
}

} // namespace

using BackprintEditingTest = BackprintWindow;

TEST_F(BackprintEditingTest, TypingStoresTheTypedTextAndEndingStoresTheSafeFormAndAsksTheHost)
{
    type(1, q("Smith's, Inc."));
    EXPECT_EQ(stored("CVP1"), q("Smith's, Inc."));
    EXPECT_TRUE(host->asked.isEmpty());
    endEditing(1);
    const QString safe = q("Smith\u00e6s\u2264 Inc.");
    EXPECT_EQ(stored("CVP1"), safe);
    ASSERT_EQ(host->asked.size(), 1);
    EXPECT_EQ(host->asked.first(), qMakePair(q("CVP1"), QVariant(safe)));
    EXPECT_EQ(line(1)->text(), q("Smith's, Inc."));
    // Leaving the line after Return ends nothing again.
    line(2)->setFocus();
    EXPECT_EQ(host->asked.size(), 1);
    EXPECT_EQ(beeps.count, 0);
}

TEST_F(BackprintEditingTest, ARefusedCharacterGoesAtOnceWithABeep)
{
    type(1, q("ab~c\u00e9d\u00a9"));
    EXPECT_EQ(line(1)->text(), q("abcd\u00a9"));
    EXPECT_EQ(beeps.count, 2);
    EXPECT_EQ(stored("CVP1"), q("abcd\u00a9"));
    line(1)->setCursorPosition(2);
    QTest::keyClicks(line(1), q("~"));
    EXPECT_EQ(line(1)->text(), q("ab"));
    EXPECT_EQ(stored("CVP1"), q("ab"));
    EXPECT_EQ(beeps.count, 3);
}

TEST_F(BackprintEditingTest, ALongPasteIsCutWithOneBeepAndTheCaretStays)
{
    paste(1, QString(125, u'x'));
    EXPECT_EQ(line(1)->text(), QString(120, u'x'));
    EXPECT_EQ(beeps.count, 1);
    line(1)->setCursorPosition(3);
    QTest::keyClicks(line(1), q("ab"));
    EXPECT_EQ(line(1)->text(), q("xxxab") + QString(115, u'x'));
    EXPECT_EQ(line(1)->cursorPosition(), 5);
    EXPECT_EQ(beeps.count, 3);
}

TEST_F(BackprintEditingTest, ABackslashAtTheEndGetsASpaceThatTheNextKeystrokeTakesBack)
{
    paste(1, QString(119, u'x') + u'\\');
    endEditing(1);
    EXPECT_EQ(line(1)->text().size(), 121);
    EXPECT_EQ(panel->panelView()->findChild<QLabel*>(q("count1"))->text(), q("0 left"));
    EXPECT_EQ(stored("CVP1"), QString(119, u'x') + q("\\ "));
    EXPECT_EQ(beeps.count, 0);
    EXPECT_EQ(host->asked.size(), 1);
    line(2)->setFocus();
    EXPECT_EQ(host->asked.size(), 1) << "the space is not the user's, and asks for nothing";
    line(1)->setFocus();
    QTest::keyClick(line(1), Qt::Key_Home);
    QTest::keyClicks(line(1), q("y"));
    EXPECT_EQ(line(1)->text(), u'y' + QString(119, u'x'));
    EXPECT_EQ(beeps.count, 1);
}

TEST_F(BackprintEditingTest, UndoGoesBackBeyondWhatWasRefused)
{
    type(1, q("one"));
    QTest::keyClick(line(1), Qt::Key_Left);
    QTest::keyClick(line(1), Qt::Key_End);
    type(1, q(" two~"));
    EXPECT_EQ(line(1)->text(), q("one two"));
    QTest::keyClick(line(1), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(line(1)->text(), q("one"));
    EXPECT_EQ(stored("CVP1"), q("one"));
    QTest::keyClick(line(1), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(line(1)->text(), QString());
    EXPECT_EQ(panel->panelView()->findChild<QLabel*>(q("count1"))->text(), q("120 left"));
    // The empty line is a choice like any other.
    EXPECT_EQ(stored("CVP1"), QString());
    QTest::keyClick(line(1), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(line(1)->text(), q("one"));
    // Only the keystroke itself was refused, not the way back.
    EXPECT_EQ(beeps.count, 1);
}

TEST_F(BackprintEditingTest, WhatAnInputMethodComposesIsHeldToTheRulesWhenItIsCommitted)
{
    type(1, q("ab"));
    compose(line(1), q("\u304b"), {});
    EXPECT_EQ(line(1)->text(), q("ab"));
    EXPECT_EQ(beeps.count, 0);
    compose(line(1), {}, q("c\u304b"));
    EXPECT_EQ(line(1)->text(), q("abc"));
    EXPECT_EQ(beeps.count, 1);
    compose(line(1), {}, q("d"));
    EXPECT_EQ(line(1)->text(), q("abcd"));
    EXPECT_EQ(stored("CVP1"), q("abcd"));
}

} // namespace halvern
