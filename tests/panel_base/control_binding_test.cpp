// SPDX-License-Identifier: MIT
#include "panel_base/matrix_panel.h"
#include "platform/foundation/bundle.h"
#include "platform/toolkit/control.h"
#include "platform/toolkit/decimal_slider.h"
#include "platform/toolkit/matrix.h"
#include "platform/toolkit/stepper.h"
#include "tests/panel_base/test_panel.h"

#include <QGroupBox>
#include <QTabWidget>

namespace halvern {

class ControlBindingTest : public testing::Test {
protected:
    ControlBindingTest()
    {
        useBuiltBundle();
        panel->setPanelView(view);
    }

    ~ControlBindingTest() override
    {
        panel.reset();
        drainMainQueue();
    }

    BeepCounter beeps;
    LogCapture log;
    std::shared_ptr<FakeHost> host = std::make_shared<FakeHost>(
        ppdHeader() + ppdOption("A", {"On", "Plain/A plain choice", "SharpnessRadius/Text"}));
    std::shared_ptr<TestPanel> panel = makePanel<TestPanel>(host);
    QWidget* view = new QWidget;
};

TEST_F(ControlBindingTest, ShowsChoicesInTagOrderOverOneGapAndStopsAtTwo)
{
    QList<QLabel*> labels;
    for (const int tag : {1, 2, 4, 7}) {
        labels.append(addControl<QLabel>(view, tag));
        panel->setChoice_forKey(q("v%1").arg(tag), panel->ppdOptionKeyForTag(tag));
    }
    auto* toggle = addControl<QCheckBox>(view, 0x201);
    panel->setChoice_forKey(q("tRUE"), q("T"));
    panel->updateUI();
    EXPECT_EQ(labels[2]->text(), q("v4"));
    EXPECT_EQ(labels[3]->text(), QString());
    EXPECT_TRUE(toggle->isChecked());
}

TEST_F(ControlBindingTest, AToggleReachesEveryGroupUpToItsFirstGap)
{
    QMap<int, QWidget*> controls;
    for (const int tag : {1, 2, 4, 0x141, 0x142, 0x281, 0x1401})
        controls.insert(tag, addControl<QLineEdit>(view, tag));
    panel->unsupportedTags.insert(2);
    auto* toggle = addControl<QCheckBox>(view, 0x201);
    panel->updateControl_withValue(toggle, q("False"));
    for (const int tag : {1, 2, 0x141, 0x142, 0x281, 0x1401})
        EXPECT_FALSE(controls[tag]->isEnabled()) << tag;
    EXPECT_TRUE(controls[4]->isEnabled());
    EXPECT_TRUE(toggle->isEnabled());
    toggle->setChecked(true);
    panel->changePrinterSetting(toggle);
    EXPECT_FALSE(controls[2]->isEnabled());
    for (const int tag : {1, 0x141, 0x142, 0x281, 0x1401})
        EXPECT_TRUE(controls[tag]->isEnabled()) << tag;
    EXPECT_EQ(panel->stored("T"), q("True"));
}

TEST_F(ControlBindingTest, ALongFirstGroupSkipsTheCompanions)
{
    // The bit that decides is that of the number above the missing tag.
    for (int tag = 1; tag <= 62; ++tag)
        addControl<QLineEdit>(view, tag);
    auto* companion = addControl<QLineEdit>(view, 0x141);
    auto* decrement = addControl<QPushButton>(view, 0x281);
    auto* toggle = addControl<QCheckBox>(view, 0x201);
    panel->setControlsEnabledByToggle(toggle);
    EXPECT_TRUE(companion->isEnabled());
    EXPECT_FALSE(decrement->isEnabled());
}

TEST_F(ControlBindingTest, FillsMenusFromThePpdAndTranslatesKeywordsFirst)
{
    auto* popup = addControl<QComboBox>(view, 1);
    popup->addItem(q("from the layout"));
    auto* unknown = addControl<QComboBox>(view, 2);
    unknown->addItem(q("from the layout"));
    QLocale::setDefault(QLocale(q("de_DE")));
    useBuiltBundle(q("de_DE"));
    const auto german = makePanel<TestPanel>(host);
    german->populateMenuObjectsInView(view);
    ASSERT_EQ(popup->count(), 3);
    EXPECT_EQ(popup->itemText(0), q("Ein"));
    EXPECT_EQ(popup->itemText(1), q("A plain choice"));
    EXPECT_EQ(popup->itemText(2), q("Schärferadius"));
    EXPECT_EQ(popup->itemData(2).toString(), q("SharpnessRadius"));
    EXPECT_EQ(popup->currentIndex(), 0);
    EXPECT_EQ(unknown->itemText(0), q("from the layout"));
    EXPECT_TRUE(host->asked.isEmpty());
}

TEST_F(ControlBindingTest, FillsAMenuWithTagZero)
{
    class FromZero : public TestPanel {
        std::optional<QString> ppdOptionKeyForTag(int tag) override
        {
            return tag == 0 ? std::optional(q("A")) : std::nullopt;
        }
    };

    const auto fromZero = makePanel<FromZero>(host);
    view->setProperty("tag", 9);
    auto* popup = addControl<QComboBox>(view, 0);
    fromZero->populateMenuObjectsInView(view);
    EXPECT_EQ(popup->count(), 3);
}

TEST_F(ControlBindingTest, APopUpShowsNoItemForAnUnknownChoice)
{
    auto* popup = addControl<QComboBox>(view, 1);
    panel->populateMenuObjectsInView(view);
    panel->updateControl_withValue(popup, q("Plain"));
    EXPECT_EQ(popup->currentIndex(), 1);
    panel->updateControl_withValue(popup, 3);
    EXPECT_EQ(popup->currentIndex(), 1);
    panel->updateControl_withValue(popup, q("gone"));
    EXPECT_EQ(popup->currentIndex(), -1);
}

TEST_F(ControlBindingTest, LocalizesTitlesLabelsTabsToolTipsAndAccessibleNames)
{
    auto* tabs = new QTabWidget(view);
    auto* page = new QGroupBox(q("Sharpness"));
    auto* column = new QVBoxLayout(page);
    auto* label = new QLabel(q("Strong"));
    label->setToolTip(q("None"));
    label->setAccessibleName(q("Fine detail"));
    column->addWidget(label);
    auto* matrix = new Matrix;
    matrix->setCellTitles({q("On"), q("no entry")});
    column->addWidget(matrix);
    tabs->addTab(page, q("Restore Defaults"));
    useBuiltBundle(q("de_DE"));
    const auto german = makePanel<TestPanel>(host);
    // The answer is the last child's, and the view itself has no text.
    EXPECT_TRUE(german->localizeStringsInView_andSubviews_resizeTofit(view, true, false));
    EXPECT_EQ(page->title(), q("Schärfe"));
    EXPECT_EQ(label->text(), q("Stark"));
    EXPECT_EQ(label->toolTip(), q("Keine"));
    EXPECT_EQ(label->accessibleName(), q("Feine Details"));
    EXPECT_EQ(matrix->cellTitles(), (QStringList{q("Ein"), q("no entry")}));
    EXPECT_EQ(tabs->tabText(0), q("Standardwerte"));
    EXPECT_FALSE(german->localizeStringsInView_andSubviews_resizeTofit(view, true, false));
}

TEST_F(ControlBindingTest, StepsByOneWithinTheRange)
{
    DecimalSlider* slider = addSlider(view, 2, 0, 3.5, 0.01);
    auto* up = addControl<QPushButton>(view, 0x1402);
    auto* down = addControl<QPushButton>(view, 0x282);
    slider->setRealValue(1.9);
    panel->incrementControl(up);
    EXPECT_EQ(panel->stored("B"), q("2"));
    panel->incrementControl(up);
    panel->incrementControl(up);
    EXPECT_DOUBLE_EQ(slider->realValue(), 3.0);
    EXPECT_EQ(host->asked.size(), 2);
    slider->setRealValue(0.5);
    panel->decrementControl(down);
    EXPECT_DOUBLE_EQ(slider->realValue(), 0.5);
    EXPECT_EQ(host->asked.size(), 2);
    DecimalSlider* whole = addSlider(view, 3, 0, 3, 0.01);
    whole->setRealValue(2.0);
    panel->incrementControl(addControl<QPushButton>(view, 0x1403));
    EXPECT_DOUBLE_EQ(whole->realValue(), 3.0) << "the maximum itself can be reached";
    EXPECT_EQ(beeps.count, 0);
}

TEST_F(ControlBindingTest, AControlWithoutAnOptionIsRefused)
{
    auto* box = addControl<QCheckBox>(view, 99);
    panel->changePrinterSetting(box);
    EXPECT_EQ(beeps.count, 1);
    panel->changePrinterSetting(addControl<QGroupBox>(view, 1));
    EXPECT_EQ(beeps.count, 1);
    EXPECT_TRUE(host->asked.isEmpty());
}

TEST_F(ControlBindingTest, AMinusLeftInAFieldBecomesZeroWithoutAChoice)
{
    auto* field = addControl<QLineEdit>(view, 1);
    field->setText(q("-"));
    panel->controlTextDidChange(field);
    panel->controlTextDidEndEditing(field);
    EXPECT_EQ(field->text(), q("0"));
    EXPECT_EQ(panel->stored("A"), q("-"));
    EXPECT_EQ(host->asked.size(), 1);
}

} // namespace halvern
