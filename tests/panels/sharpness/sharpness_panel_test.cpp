// SPDX-License-Identifier: MIT
#include "panels/simple/sharpness_panel.h"
#include "platform/toolkit/control.h"
#include "platform/toolkit/decimal_slider.h"
#include "platform/toolkit/view_search.h"
#include "tests/support/test.h"

#include <QStyle>
#include <QStyleOptionSlider>

namespace halvern {

/// The real panel with its real layout in a window, worked with the mouse and the keyboard.
class SharpnessPanelTest : public testing::Test {
protected:
    void SetUp() override
    {
        useBuiltBundle();
        host = std::make_shared<FakeHost>(
            ppdHeader() + ppdOption("SharpnessEnabled", {"True", "False"}) +
            ppdOption("SharpnessIntensity", {"1.00"}) +
            "*CustomSharpnessIntensity True: \"pop\"\n*ParamCustomSharpnessIntensity Factor: 1 real 0 3.5\n"
            "*SharpnessRadiusDefault: \"2\"\n");
        panel = makePanel<RZSharpnessPDEHalvern>(host);
        ASSERT_NE(panel, nullptr);
        panel->restoreValuesAndReturnError(nullptr);
        panel->willShow();
        ASSERT_NE(panel->panelView(), nullptr);
        (new QVBoxLayout(&window))->addWidget(panel->panelView());
        window.show();
        window.activateWindow();
        ASSERT_TRUE(waitUntil([&] { return window.isActiveWindow(); }));
    }

    void TearDown() override
    {
        panel->panelView()->setParent(nullptr);
        panel.reset();
        drainMainQueue();
    }

    template <class W> W* find(int tag) { return qobject_cast<W*>(viewWithTag(panel->panelView(), tag)); }

    DecimalSlider* slider(int tag) { return find<DecimalSlider>(tag); }

    QLineEdit* field(int tag) { return find<QLineEdit>(0x140 + tag); }

    QAbstractButton* button(int tag) { return find<QAbstractButton>(tag); }

    QString stored(const char* key) { return panel->choices()->value(q(key)).toString(); }

    void typeInto(QLineEdit* target, const char* text)
    {
        target->setFocus();
        target->selectAll();
        QTest::keyClicks(target, q(text));
    }

    BeepCounter beeps;
    std::shared_ptr<FakeHost> host;
    std::shared_ptr<RZSharpnessPDEHalvern> panel;
    QWidget window;
};

TEST_F(SharpnessPanelTest, ShowsWhatIsStoredAndAsksTheHostNothing)
{
    EXPECT_DOUBLE_EQ(slider(1)->realValue(), 2.0);
    EXPECT_EQ(field(1)->text(), q("2"));
    EXPECT_EQ(field(2)->text(), q("1.00"));
    EXPECT_TRUE(button(0x200)->isChecked());
    EXPECT_EQ(slider(2)->maximumValue(), 3.5) << "the PPD's, not the layout's";
    EXPECT_TRUE(host->asked.isEmpty());
    EXPECT_EQ(beeps.count, 0);
}

TEST_F(SharpnessPanelTest, EachKeystrokeIsOneChoiceAndTheCaretStays)
{
    typeInto(field(1), "1");
    EXPECT_EQ(host->asked.size(), 1);
    QTest::keyClicks(field(1), q("0"));
    EXPECT_EQ(host->asked.size(), 2);
    EXPECT_EQ(field(1)->text(), q("10"));
    EXPECT_EQ(stored("SharpnessRadius"), q("10"));
    EXPECT_DOUBLE_EQ(slider(1)->realValue(), 10.0);
    typeInto(field(2), "2");
    EXPECT_EQ(field(2)->text(), q("2.00"));
    EXPECT_EQ(stored("SharpnessIntensity"), q("2.00"));
    EXPECT_EQ(beeps.count, 0);
}

TEST_F(SharpnessPanelTest, DigitsStandWhereTheyAreTyped)
{
    for (const auto& [typed, shown] :
         {std::pair{".5", "0.50"}, {".25", "0.25"}, {"1.07", "1.07"}, {"3", "3.00"}}) {
        typeInto(field(2), typed);
        EXPECT_EQ(field(2)->text(), QLatin1StringView(shown)) << typed;
    }
    QTest::keyClick(field(2), Qt::Key_Home);
    QTest::keyClick(field(2), Qt::Key_Delete);
    QTest::keyClicks(field(2), q("1"));
    EXPECT_EQ(field(2)->text(), q("1.00"));
}

TEST_F(SharpnessPanelTest, EndingTheEditNormalisesOnceAndASecondEndChangesNothing)
{
    typeInto(field(2), "3");
    field(2)->setText(q("3.456"));
    QTest::keyClick(field(2), Qt::Key_Return);
    EXPECT_EQ(field(2)->text(), q("3.46"));
    EXPECT_EQ(stored("SharpnessIntensity"), q("3.46"));
    const qsizetype asked = host->asked.size();
    slider(1)->setFocus();
    EXPECT_EQ(host->asked.size(), asked);
    field(2)->setText(q("-1"));
    panel->changePrinterSetting(field(2));
    EXPECT_EQ(stored("SharpnessIntensity"), q("1.00")) << "there is no negative intensity";
    const qsizetype askedBefore = host->asked.size();
    // Passing through a field without touching it proposes nothing.
    field(2)->setFocus();
    slider(1)->setFocus();
    EXPECT_EQ(host->asked.size(), askedBefore);
}

} // namespace halvern
