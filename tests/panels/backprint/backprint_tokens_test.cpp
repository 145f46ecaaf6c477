// SPDX-License-Identifier: MIT
#include "platform/foundation/user_defaults.h"
#include "platform/maker/backprint_text.h"
#include "tests/panels/backprint/backprint_window.h"

namespace halvern {

class BackprintTokensTest : public BackprintWindow {
protected:
    void SetUp() override
    {
        BackprintWindow::SetUp();
        remember(QVariant());
    }

    static void remember(const QVariant& token)
    {
        QVariantMap values;
        if (token.isValid())
            values.insert(lastTokenKey, token);
        UserDefaults::standardUserDefaults().setPersistentDomain(values, UserDefaults::globalDomain());
    }

    QComboBox* menu() { return find<QComboBox>(256); }

    void choose(const char* token) { menu()->setCurrentIndex(menu()->findData(QString::fromLatin1(token))); }

    QWidget* dialogsField() { return window->findChild<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly); }

    inline static const QString lastTokenKey = q("com.halvern.print.pde.cvp.lastToken");
};

TEST_F(BackprintTokensTest, EveryTokenHasAReadableTitleInEveryLanguage)
{
    for (const char* language : {"en_US", "de_DE", "fr_FR", "es_ES", "ar_EG", "ja_JP"}) {
        useBuiltBundle(q(language));
        close();
        open();
        ASSERT_EQ(menu()->count(), 10);
        for (int i = 0; i < 10; ++i) {
            const QString token = QString::fromLatin1(backprint::kTokens.at(size_t(i)));
            EXPECT_EQ(menu()->itemData(i), token);
            EXPECT_FALSE(menu()->itemText(i).contains(token)) << language;
            EXPECT_EQ(menu()->findText(menu()->itemText(i)), i) << language;
        }
    }
    EXPECT_EQ(menu()->itemText(0), q("年（4桁）"));
}

TEST_F(BackprintTokensTest, InsertsIntoTheFocusedLineAtItsCursorAndRemembersTheToken)
{
    type(2, q("ab"));
    line(2)->setCursorPosition(1);
    choose("[MM]");
    click(257);
    EXPECT_EQ(line(2)->text(), q("a[MM]b"));
    EXPECT_EQ(line(2)->cursorPosition(), 5);
    EXPECT_EQ(stored("CVP2"), q("a[MM]b"));
    EXPECT_EQ(line(1)->text(), QString());
    EXPECT_EQ(UserDefaults::standardUserDefaults().objectForKey(lastTokenKey), q("[MM]"));
    // The line goes on being edited: its end is the stored form's.
    endEditing(2);
    EXPECT_EQ(host->asked.last(), qMakePair(q("CVP2"), QVariant(q("a[MM]b"))));
    close();
    open();
    EXPECT_EQ(menu()->currentData(), q("[MM]"));
    remember(q("[ZZ]"));
    panel->populateMenuObjectsInView(panel->panelView());
    EXPECT_EQ(menu()->currentIndex(), 0);
}

TEST_F(BackprintTokensTest, AFocusElsewhereComesBackToTheLastLineWithTheUsersSelection)
{
    type(1, q("first"));
    type(2, q("second"));
    line(2)->setSelection(1, 3);
    find(257)->setFocus(Qt::MouseFocusReason);
    EXPECT_FALSE(line(2)->hasSelectedText());
    choose("[D]");
    QTest::keyClick(find(257), Qt::Key_Space);
    EXPECT_EQ(line(2)->text(), q("s[D]nd"));
    EXPECT_TRUE(line(2)->hasFocus());
    // Without a selection it is the cursor that counts, and another field of the dialog takes no token.
    line(1)->setFocus();
    line(1)->setCursorPosition(2);
    dialogsField()->setFocus();
    click(257);
    EXPECT_EQ(line(1)->text(), q("fi[D]rst"));
    EXPECT_TRUE(dialogsField()->property("text").toString().isEmpty());
    EXPECT_EQ(line(1)->cursorPosition(), 5);
    dialogsField()->setFocus();
    EXPECT_EQ(host->asked.last(), qMakePair(q("CVP1"), QVariant(q("fi[D]rst"))));
}

TEST_F(BackprintTokensTest, ASelectionThatCameWithTheFocusIsNotReplaced)
{
    type(1, q("text"));
    choose("[U]");
    QTest::keyClick(line(1), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    ASSERT_TRUE(line(1)->hasFocus());
    ASSERT_EQ(line(1)->selectedText(), q("text"));
    click(257);
    EXPECT_EQ(line(1)->text(), q("text[U]"));
    QTest::keyClick(line(1), Qt::Key_A, Qt::ControlModifier);
    click(257);
    EXPECT_EQ(line(1)->text(), q("[U]"));
    line(1)->setFocus(Qt::TabFocusReason);
    find(257)->setFocus();
    line(1)->setFocus(Qt::TabFocusReason);
    find(257)->setFocus();
    QTest::keyClick(find(257), Qt::Key_Space);
    EXPECT_EQ(line(1)->text(), q("[U][U]"));
}

TEST_F(BackprintTokensTest, FollowsTheFocusOnlyWhileShown)
{
    EXPECT_EQ(log.count(q("will show backprint")), 1);
    type(1, q("a"));
    EXPECT_TRUE(panel->shouldHide());
    EXPECT_EQ(log.count(q("entering RZBackprintPDEHalvern -[RZBackprintPDEHalvern shouldHide] ")), 1);
    find(257)->setFocus();
    QTest::keyClick(find(257), Qt::Key_Space);
    EXPECT_EQ(line(1)->text(), q("a"));
}

TEST_F(BackprintTokensTest, TheTokenControlsStayUsableWhileALineIsSwitchedOn)
{
    click(512);
    EXPECT_FALSE(line(1)->isEnabled());
    EXPECT_TRUE(line(2)->isEnabled());
    EXPECT_TRUE(menu()->isEnabled());
    EXPECT_EQ(stored("EnableCVP1"), q("False"));
    click(513);
    EXPECT_FALSE(line(2)->isEnabled());
    EXPECT_FALSE(menu()->isEnabled());
    EXPECT_FALSE(find(257)->isEnabled());
    // The log's toggle governs no line, but switched on it brings the token controls back like the others.
    click(514);
    EXPECT_TRUE(menu()->isEnabled());
    click(514);
    EXPECT_FALSE(menu()->isEnabled());
    click(513);
    EXPECT_TRUE(line(2)->isEnabled());
    EXPECT_FALSE(line(1)->isEnabled());
    EXPECT_TRUE(find(257)->isEnabled());
}

} // namespace halvern
