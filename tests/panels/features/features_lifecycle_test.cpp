// SPDX-License-Identifier: MIT
#include "tests/panels/features/features_fixture.h"

#include "platform/toolkit/control.h"
#include "platform/toolkit/matrix.h"
#include "platform/toolkit/stepper.h"

#include <QGroupBox>

namespace halvern {
namespace {

using namespace features;

class FeaturesLifecycle : public FeaturesPanelTest {
protected:
    void showRoll()
    {
        show(catalogueOf({sheetRecord(q("Gloss A4"), 300), rollRecord(1524, 1, 300)}));
        choose(kFeedTag, "Roll");
    }
};

TEST_F(FeaturesLifecycle, ANumberIsTakenWhenEditingEnds)
{
    showRoll();
    QLineEdit* overspill = field(kOverspillTag);
    panel->panelView()->show();
    overspill->setFocus();
    overspill->selectAll();
    const qsizetype askedBefore = asked("Overspill").size();
    QTest::keyClicks(overspill, q("2.55"));
    EXPECT_EQ(asked("Overspill").size(), askedBefore);
    QTest::keyClick(overspill, Qt::Key_Return);
    EXPECT_EQ(asked("Overspill").size(), askedBefore + 1);
    EXPECT_EQ(choice("Overspill"), q("2.5"));
    EXPECT_EQ(overspill->text(), q("2.5"));
    EXPECT_DOUBLE_EQ(stepper(kOverspillStepperTag)->realValue(), 2.5);

    overspill->selectAll();
    QTest::keyClicks(overspill, q("-"));
    QTest::keyClick(overspill, Qt::Key_Return);
    EXPECT_EQ(choice("Overspill"), q("0.0"));
}

TEST_F(FeaturesLifecycle, TheStepperMovesItsField)
{
    showRoll();
    QTest::keyClick(stepper(kOverspillStepperTag), Qt::Key_Up);
    EXPECT_EQ(choice("Overspill"), q("0.5"));
    EXPECT_EQ(field(kOverspillTag)->text(), q("0.5"));
}

TEST_F(FeaturesLifecycle, SavesWhatTheHostDoesNotCarry)
{
    showRoll();
    panel->store("BindingWidth", "7.5");
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
    EXPECT_EQ(host->settings->values().value(q("BindingWidth")), q("7.5"));
    EXPECT_FALSE(host->settings->values().contains(q("Overspill")));
    host->settings.reset();
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
}

TEST_F(FeaturesLifecycle, RestoreDefaultsTakesTheFirstLoadedName)
{
    show(catalogueOf({sheetRecord(q("A"), 300), sheetRecord(q("B"), 300)}));
    choose(kNameTag, "B");
    choose(kToneTag, "Vivid");
    panel->changePrinterSetting(control(tags::kRestoreDefaults));
    EXPECT_EQ(choice("PaperName"), q("A"));
    EXPECT_EQ(menu(kNameTag)->currentText(), q("A"));
    EXPECT_EQ(menu(kToneTag)->currentText(), q("Standard"));
}

TEST_F(FeaturesLifecycle, SpeaksTheUsersLanguageButNotInTheTitlesThatTheRulesRead)
{
    useBuiltBundle(q("de_DE"));
    show(catalogueOf({sheetRecord(q("Gloss A4"), 610)}));
    EXPECT_EQ(panel->panelName(), q("Papier und Qualität"));
    EXPECT_EQ(titles(kFeedTag).first(), q("Einzelblatt"));
    EXPECT_EQ(enabledTitles(kResolutionTag), QStringList{q("610 dpi")});
    EXPECT_EQ(surfaces()->cellTitles().first(), q("1"));
    panel->setToolTip_fromSender(q("tip"), control(1));
    EXPECT_TRUE(control(1)->toolTip().isEmpty());
}

} // namespace
} // namespace halvern
