// SPDX-License-Identifier: MIT
#include "platform/toolkit/accessible_controls.h"
#include "platform/toolkit/control.h"
#include "platform/toolkit/decimal_slider.h"
#include "platform/toolkit/matrix.h"
#include "platform/toolkit/plain_text.h"
#include "platform/toolkit/stepper.h"
#include "platform/toolkit/view_search.h"
#include "platform/toolkit/wheel_guard.h"
#include "tests/support/test.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTextDocumentFragment>
#include <QWheelEvent>

#include <limits>

namespace halvern {

TEST(DecimalSliderTest, KeepsTheProgramsValueExactlyAndTellsOnlyOfTheUsers)
{
    DecimalSlider slider;
    slider.setMaximumValue(5.0);
    slider.setSingleStepValue(0.01);
    const QSignalSpy moved(&slider, &DecimalSlider::userMoved);
    slider.setRealValue(1.237);
    EXPECT_DOUBLE_EQ(slider.realValue(), 1.237);
    slider.setRealValue(99);
    EXPECT_DOUBLE_EQ(slider.realValue(), 5.0);
    slider.setRealValue(std::numeric_limits<double>::quiet_NaN());
    EXPECT_DOUBLE_EQ(slider.realValue(), 5.0);
    EXPECT_EQ(moved.count(), 0);
    slider.setRealValue(0.34);
    QTest::keyClick(&slider, Qt::Key_Right);
    EXPECT_EQ(control::stringValue(&slider), q("0.35")) << "35 hundredths added up are a little more";
    QWheelEvent wheel(QPointF(5, 5), slider.mapToGlobal(QPointF(5, 5)), {}, QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&slider, &wheel);
    QTest::keyClick(&slider, Qt::Key_End);
    EXPECT_EQ(moved.count(), 3);
    EXPECT_DOUBLE_EQ(slider.realValue(), 5.0);
    QTest::keyClick(&slider, Qt::Key_End);
    EXPECT_EQ(moved.count(), 3);
}

TEST(DecimalSliderTest, ReachesAMaximumThatIsNoMultipleOfTheStep)
{
    DecimalSlider slider;
    slider.setMinimumValue(-1.0);
    slider.setMaximumValue(1.25);
    slider.setSingleStepValue(0.5);
    QTest::keyClick(&slider, Qt::Key_End);
    EXPECT_DOUBLE_EQ(slider.realValue(), 1.25);
    QTest::keyClick(&slider, Qt::Key_Left);
    EXPECT_DOUBLE_EQ(slider.realValue(), 1.0);
    QTest::keyClick(&slider, Qt::Key_Home);
    EXPECT_DOUBLE_EQ(slider.realValue(), -1.0);
}

TEST(StepperTest, StepsWithinItsRange)
{
    Stepper stepper;
    stepper.setMaximumValue(1.0);
    stepper.setIncrement(0.4);
    const QSignalSpy stepped(&stepper, &Stepper::userStepped);
    const auto arrows = stepper.findChildren<QToolButton*>();
    QTest::mouseClick(arrows[0], Qt::LeftButton);
    EXPECT_DOUBLE_EQ(stepper.realValue(), 0.4);
    QTest::keyClick(&stepper, Qt::Key_Up);
    QTest::keyClick(&stepper, Qt::Key_Up);
    QTest::keyClick(&stepper, Qt::Key_Up);
    EXPECT_DOUBLE_EQ(stepper.realValue(), 1.0);
    EXPECT_EQ(stepped.count(), 3);
    EXPECT_FALSE(arrows[0]->isEnabled());
    stepper.setRealValue(0.5);
    EXPECT_EQ(stepped.count(), 3);
}

TEST(MatrixTest, SelectsCellsByTagAndTellsOnlyOfTheUsers)
{
    Matrix matrix;
    matrix.setCellTitles({q("1"), q("2"), q("3")});
    matrix.setCellTags({q("7"), q("8")});
    EXPECT_EQ(matrix.cellTags(), (QStringList{q("7"), q("8"), q("3")}));
    const QSignalSpy selected(&matrix, &Matrix::userSelected);
    EXPECT_EQ(matrix.selectedTag(), std::nullopt);
    matrix.cells()[1]->setEnabled(false);
    matrix.selectCellWithTag(8);
    EXPECT_EQ(matrix.selectedTag(), 8);
    matrix.selectCellWithTag(99);
    EXPECT_EQ(matrix.selectedTag(), std::nullopt);
    EXPECT_EQ(selected.count(), 0);
    matrix.cells()[0]->click();
    EXPECT_EQ(matrix.selectedTag(), 7);
    EXPECT_EQ(selected.count(), 1);
}

TEST(ControlTest, ANumberIsNotTheItemOfTheSameText)
{
    QComboBox popup;
    popup.addItem(q("a"), 3000);
    popup.addItem(q("b"), q("3000"));
    EXPECT_EQ(control::indexOfItemWithRepresentedObject(&popup, q("3000")), 1);
}

TEST(ViewSearchTest, FindsTheFirstViewDepthFirstAndNeverAControlsParts)
{
    QWidget view;
    auto* column = new QVBoxLayout(&view);
    auto* tabs = new QTabWidget;
    column->addWidget(tabs);
    auto* page = new QWidget;
    auto* inner = new QLabel(page);
    inner->setProperty("tag", 5);
    tabs->addTab(new QWidget, q("one"));
    tabs->addTab(page, q("two"));
    auto* outer = new QLabel;
    outer->setProperty("tag", 5);
    column->addWidget(outer);
    auto* popup = new QComboBox;
    popup->setProperty("tag", 6);
    popup->view()->setProperty("tag", 9);
    column->addWidget(popup);
    EXPECT_EQ(viewWithTag(&view, 0), &view);
    EXPECT_EQ(viewWithTag(&view, 5), inner);
    EXPECT_EQ(viewWithTag(&view, 6), popup);
    EXPECT_EQ(viewWithTag(&view, 9), nullptr);
    (new QWidget(&view, Qt::Window))->setProperty("tag", 8);
    EXPECT_EQ(viewWithTag(&view, 8), nullptr) << "a window of its own is no part of the view";
    EXPECT_EQ(viewWithTag(nullptr, 0), nullptr);
}

TEST(AccessibleControlsTest, TellTheNumberOfTheFieldAndThatRadioButtonsBelongTogether)
{
    installAccessibleControls();
    DecimalSlider slider;
    slider.setMinimumValue(-100.0);
    slider.setRealValue(-12.5);
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&slider);
    ASSERT_TRUE(told && told->valueInterface());
    EXPECT_EQ(told->text(QAccessible::Value), q("-12.5"));
    EXPECT_EQ(told->valueInterface()->minimumValue().toDouble(), -100.0);
    const QSignalSpy moved(&slider, &DecimalSlider::userMoved);
    told->valueInterface()->setCurrentValue(30.0);
    EXPECT_EQ(slider.realValue(), 30.0);
    EXPECT_EQ(moved.count(), 1);
    Matrix matrix;
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&matrix)->role(), QAccessible::Grouping);
}

TEST(WheelGuardTest, TheWheelScrollsUnlessTheControlHasTheFocus)
{
    QWidget window;
    QComboBox box(&window);
    box.addItems({q("a"), q("b")});
    QLineEdit other(&window);
    new WheelGuard(&window);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_EQ(box.focusPolicy(), Qt::StrongFocus) << "the wheel does not move the focus";
    for (const bool isFocused : {false, true}) {
        (isFocused ? static_cast<QWidget*>(&box) : &other)->setFocus();
        QWheelEvent down(QPointF(5, 5), box.mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton, {},
                         Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&box, &down);
        EXPECT_EQ(box.currentIndex(), isFocused ? 1 : 0);
        EXPECT_EQ(down.isAccepted(), isFocused);
    }
}

TEST(PlainTextTest, ShowsMarkupAsItIsWritten)
{
    const QString markup = q("<img src='/dev/zero'> & [*]");
    QLabel label;
    setPlainText(&label, markup);
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    EXPECT_EQ(label.text(), markup);
    setPlainToolTip(&label, markup);
    EXPECT_EQ(QTextDocumentFragment::fromHtml(label.toolTip()).toPlainText(), markup);
    EXPECT_EQ(plainToolTip(q("1 < 2")), q("1 < 2"));
    EXPECT_EQ(captionText(q("Black & White")), q("Black && White"));
}

TEST(ControlTest, RewritingAFieldKeepsItsCaret)
{
    QLineEdit field(q("abcdef"));
    field.setCursorPosition(2);
    control::setStringValue(&field, q("abXcdef"));
    EXPECT_EQ(field.cursorPosition(), 2);
    field.setCursorPosition(7);
    control::setStringValue(&field, q("abc"));
    EXPECT_EQ(field.cursorPosition(), 3);
}

} // namespace halvern
