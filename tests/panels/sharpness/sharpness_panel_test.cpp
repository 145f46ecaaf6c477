#include "panels/simple/sharpness_panel.h"
#include "platform/toolkit/control.h"
#include "platform/toolkit/decimal_slider.h"
#include "platform/toolkit/view_search.h"
#include "tests/support/fake_host.h"
#include "tests/support/test.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QVBoxLayout>

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

    QString stored(const char* key) { return panel->choices()->value(QString::fromLatin1(key)).toString(); }

    void typeInto(QLineEdit* target, const char* text)
    {
        target->setFocus();
        target->selectAll();
        QTest::keyClicks(target, QString::fromLatin1(text));
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

TEST_F(SharpnessPanelTest, DraggingASliderStoresTheFormattedValueAndShowsItInTheField)
{
    DecimalSlider* intensity = slider(2);
    QStyleOptionSlider option;
    option.initFrom(intensity);
    option.minimum = intensity->minimum();
    option.maximum = intensity->maximum();
    option.sliderPosition = intensity->sliderPosition();
    const QPoint grip = intensity->style()
                            ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, intensity)
                            .center();
    QTest::mousePress(intensity, Qt::LeftButton, {}, grip);
    QTest::mouseMove(intensity, grip + QPoint(40, 0));
    QTest::mouseRelease(intensity, Qt::LeftButton, {}, grip + QPoint(40, 0));
    EXPECT_GT(intensity->realValue(), 1.0);
    EXPECT_EQ(stored("SharpnessIntensity"), QString::number(intensity->realValue(), 'f', 2));
    EXPECT_EQ(field(2)->text(), stored("SharpnessIntensity"));
    EXPECT_EQ(host->asked.last().second.toString(), stored("SharpnessIntensity"));
    slider(1)->setFocus();
    QTest::keyClick(slider(1), Qt::Key_Right);
    EXPECT_EQ(stored("SharpnessRadius"), q("3"));
    EXPECT_EQ(field(1)->text(), q("3"));
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
    QTest::keyClicks(field(2), QStringLiteral("1"));
    EXPECT_EQ(field(2)->text(), QStringLiteral("1.00"));
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

TEST_F(SharpnessPanelTest, TheToggleSwitchesTheControlsAndStoresItsChoice)
{
    QTest::mouseClick(button(0x200), Qt::LeftButton, {}, QPoint(8, button(0x200)->height() / 2));
    EXPECT_EQ(stored("SharpnessEnabled"), q("False"));
    EXPECT_EQ(ppd::markedChoice(host->ppdFile(), q("SharpnessEnabled"))->keyword, q("False"));
    for (const int tag : {1, 2, 0x141, 0x142, 0x281, 0x282, 0x1401, 0x1402})
        EXPECT_FALSE(viewWithTag(panel->panelView(), tag)->isEnabled()) << tag;
    QTest::keyClick(button(0x200), Qt::Key_Space);
    EXPECT_EQ(stored("SharpnessEnabled"), q("True"));
    EXPECT_TRUE(slider(1)->isEnabled());
}

TEST_F(SharpnessPanelTest, StepButtonsStepByOneAndStopAtTheLimits)
{
    QTest::mouseClick(button(0x1402), Qt::LeftButton);
    EXPECT_EQ(stored("SharpnessIntensity"), q("2.00"));
    EXPECT_EQ(field(2)->text(), q("2.00"));
    slider(1)->setRealValue(0);
    QTest::mouseClick(button(0x281), Qt::LeftButton);
    EXPECT_EQ(stored("SharpnessRadius"), q("2"));
    EXPECT_EQ(beeps.count, 0);
}

TEST_F(SharpnessPanelTest, MapsRadiusChoicesToMatrixCells)
{
    EXPECT_EQ(panel->tagForStringValue(q("2")), 4);
    EXPECT_EQ(panel->tagForStringValue({}), 0);
    EXPECT_EQ(panel->ppdChoiceForTag(5).toString(), q("3"));
}

TEST_F(SharpnessPanelTest, EveryControlCanBeReachedAndHasAName)
{
    const auto widgets = panel->panelView()->findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        if (control::tagOf(widget) == 0)
            continue;
        EXPECT_NE(widget->focusPolicy() & Qt::TabFocus, 0) << qPrintable(widget->objectName());
        EXPECT_FALSE(widget->accessibleName().isEmpty() &&
                     control::title(widget).value_or(QString()).isEmpty())
            << qPrintable(widget->objectName());
    }
}

} // namespace halvern
