// SPDX-License-Identifier: MIT
#include "tests/panels/features/features_fixture.h"

#include "platform/toolkit/control.h"
#include "platform/toolkit/stepper.h"

namespace halvern {
namespace {

using namespace features;

QStringList margins(const char* text)
{
    return q(text).split(u',');
}

class BindingRules : public FeaturesPanelTest {
protected:
    void SetUp() override
    {
        FeaturesPanelTest::SetUp();
        show(catalogueOf({sheetRecord(q("Gloss A4"), 300), rollRecord(1524, 1, 300)}));
        choose(kFeedTag, "Sheet");
    }

    void turn(PageOrientation orientation, const PageRect& paper = {0, 0, 842, 595})
    {
        host->format = std::make_shared<PageFormat>(paper, paper, orientation);
    }

    bool isAvailable(int tag) const { return control(tag)->isEnabled(); }

    QString shownMargin() const { return menu(kBindingMarginTag)->currentText(); }
};

TEST_F(BindingRules, EachStepDependsOnTheOneBefore)
{
    EXPECT_TRUE(isAvailable(kTwoSidedTag));
    EXPECT_FALSE(isAvailable(kBindingMarginTag));
    choose(kTwoSidedTag, "LongEdge");
    EXPECT_TRUE(isAvailable(kBindingMarginTag));
    EXPECT_FALSE(isAvailable(kBindingWidthTag));
    choose(kBindingMarginTag, "Left");
    EXPECT_TRUE(isAvailable(kBindingWidthTag));
    EXPECT_TRUE(isAvailable(kBindingWidthStepperTag));
    choose(kTwoSidedTag, "None");
    EXPECT_FALSE(isAvailable(kBindingMarginTag));
    EXPECT_FALSE(isAvailable(kBindingWidthTag));
}

TEST_F(BindingRules, ARollHasNoBackSide)
{
    choose(kTwoSidedTag, "LongEdge");
    choose(kFeedTag, "Roll");
    EXPECT_FALSE(isAvailable(kTwoSidedTag));
    EXPECT_EQ(choice("TwoSided"), q("None"));
    EXPECT_EQ(menu(kTwoSidedTag)->currentText(), q("Off"));
    EXPECT_EQ(asked("TwoSided").last(), q("None"));
    EXPECT_FALSE(isAvailable(kBindingMarginTag));
}

TEST_F(BindingRules, TheDuplexUnitIsLookedForInTheFreshPpd)
{
    const QList<QPair<const char*, bool>> cases{
        {"TRUE", true}, {"true", true}, {"Yes", false}, {"True ", false}, {"", false}};
    for (const auto& [value, available] : cases) {
        TestPrinter::say("VLXDuplex", value);
        panel->setDuplexAvailable();
        EXPECT_EQ(isAvailable(kTwoSidedTag), available) << value;
    }
    TestPrinter::say("VLXDuplex", nullptr);
    EXPECT_FALSE(panel->hardwareSupportsDuplex());
}

TEST_F(BindingRules, OfferTheEdgesOverWhichTheSheetTurns)
{
    choose(kTwoSidedTag, "LongEdge");
    EXPECT_EQ(enabledTitles(kBindingMarginTag), margins("None,Left,Right"));
    turn(PageOrientation::landscape);
    panel->didSelectTwoSided(nullptr);
    EXPECT_EQ(enabledTitles(kBindingMarginTag), margins("None,Top,Bottom"));
    turn(PageOrientation::portrait, {0, 0, 500, 500});
    panel->didSelectTwoSided(nullptr);
    EXPECT_EQ(enabledTitles(kBindingMarginTag), margins("None,Top,Bottom"));
    turn(PageOrientation::portrait);
    choose(kTwoSidedTag, "ShortEdge");
    EXPECT_EQ(enabledTitles(kBindingMarginTag), margins("None,Top,Bottom"));
}

TEST_F(BindingRules, StoreTheMarginAsThePaperLiesAndShowItAsThePageIsSeen)
{
    turn(PageOrientation::reverseLandscape);
    choose(kTwoSidedTag, "LongEdge");
    choose(kBindingMarginTag, "Bottom");
    EXPECT_EQ(choice("BindingMargin"), q("Right"));
    panel->willShow();
    EXPECT_EQ(shownMargin(), q("Bottom"));
    panel->restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(shownMargin(), q("Bottom"));
    EXPECT_EQ(choice("BindingMargin"), q("Right"));
}

TEST_F(BindingRules, TakeTheFirstMarginThatIsOfferedWhenTheChosenOneIsNot)
{
    choose(kTwoSidedTag, "ShortEdge");
    choose(kBindingMarginTag, "Bottom");
    choose(kTwoSidedTag, "LongEdge");
    EXPECT_EQ(choice("BindingMargin"), q("Left"));
    EXPECT_EQ(shownMargin(), q("Left"));
    choose(kTwoSidedTag, "None");
    // Not available, so there is no margin.
    EXPECT_EQ(choice("BindingMargin"), q("None"));
}

} // namespace
} // namespace halvern
