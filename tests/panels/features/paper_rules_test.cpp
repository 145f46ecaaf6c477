// SPDX-License-Identifier: MIT
#include "tests/panels/features/features_fixture.h"

#include "platform/toolkit/control.h"
#include "platform/toolkit/matrix.h"

namespace halvern {
namespace {

using namespace features;

const QVariantMap kGloss300 = sheetRecord(q("Gloss A4"), 300);
const QVariantMap kGloss610 = sheetRecord(q("Gloss A4"), 610);
const QVariantMap kMatte720 = sheetRecord(q("Matte A3"), 720);
const QVariantMap kNarrow1 = rollRecord(1524, 1, 300);
const QVariantMap kNarrow3 = rollRecord(1524, 3, 610);
const QVariantMap kWide2 = rollRecord(2100, 2, 720);

const QList<QVariantMap> kSheets{kGloss300, kGloss610, kMatte720};
const QList<QVariantMap> kRolls{kNarrow1, kNarrow3, kWide2};

QStringList words(const char* text)
{
    return q(text).split(u',', Qt::SkipEmptyParts);
}

class PaperRules : public FeaturesPanelTest {};

TEST_F(PaperRules, WithSheetsOnlyTheRollIsOutOfReach)
{
    show(catalogueOf(kSheets));
    EXPECT_EQ(choice("PaperFeed"), q("Sheet"));
    EXPECT_EQ(enabledTitles(kFeedTag), words("Cut Sheet"));
    EXPECT_EQ(titles(kNameTag), words("Gloss A4,Matte A3"));
    EXPECT_TRUE(menu(kNameTag)->isEnabled());
    for (const int tag : {kWidthTag, kSurfaceTag, kOverspillTag, kOverspillStepperTag}) {
        EXPECT_FALSE(control(tag)->isEnabled()) << tag;
        EXPECT_FALSE(control(tag)->accessibleDescription().isEmpty()) << tag;
    }
}

TEST_F(PaperRules, WithRollsOnlyTheSheetIsOutOfReach)
{
    show(catalogueOf(kRolls));
    EXPECT_EQ(choice("PaperFeed"), q("Roll"));
    EXPECT_EQ(menu(kFeedTag)->currentText(), q("Roll"));
    EXPECT_EQ(enabledTitles(kFeedTag), words("Roll"));
    EXPECT_EQ(titles(kWidthTag), words("152.4 mm,210 mm"));
    EXPECT_FALSE(menu(kNameTag)->isEnabled());
    EXPECT_EQ(menu(kNameTag)->accessibleDescription(), q("The printer has no cut sheets loaded."));
    EXPECT_TRUE(menu(kWidthTag)->isEnabled());
    EXPECT_EQ(control::itemTag(menu(kWidthTag), 0), kNameTag);
}

TEST_F(PaperRules, CompareWhatIsMeantAlsoWhereItemsAreWrittenFromRightToLeft)
{
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    show(catalogueOf({kMatte720}));
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    EXPECT_EQ(choice("Resolution"), q("720dpi"));
}

TEST_F(PaperRules, FollowAPrinterWhosePapersChangeUnderAnOpenPanel)
{
    show(catalogueOf(kSheets));
    choose(kNameTag, "Matte A3");
    give(catalogueOf(kSheets + kRolls));
    EXPECT_EQ(enabledTitles(kFeedTag), words("Cut Sheet,Roll"));
    EXPECT_EQ(titles(kFeedTag), words("Cut Sheet,Roll"));
    EXPECT_EQ(menu(kNameTag)->currentText(), q("Matte A3"));

    give(catalogueOf({kGloss300, kNarrow1}));
    EXPECT_EQ(menu(kNameTag)->currentText(), q("Gloss A4"));
    EXPECT_EQ(choice("PaperName"), q("Gloss A4"));

    give(catalogueOf(kRolls));
    EXPECT_EQ(choice("PaperFeed"), q("Roll"));
    EXPECT_EQ(enabledTitles(kFeedTag), words("Roll"));
    EXPECT_EQ(titles(kNameTag), QStringList());

    give({});
    EXPECT_TRUE(enabledTitles(kFeedTag).isEmpty());
}

TEST_F(PaperRules, KeepAStoredNameThatIsLoadedElseThePpdsElseTheFirst)
{
    const QByteArray ppd = featuresPpd() + "*PaperNameDefault: \"Matte A3\"\n";
    make(ppd);
    host->settings->setValue(q("PaperName"), q("Gloss A4"), false);
    show(catalogueOf(kSheets));
    EXPECT_EQ(choice("PaperName"), q("Gloss A4"));
    EXPECT_TRUE(asked("PaperName").isEmpty());
    // Before there was a catalogue there were no sheets; only the fallback below takes that back.
    EXPECT_TRUE(enabledTitles(kFeedTag).isEmpty());
    panel->store("PaperFeed", "Roll");
    EXPECT_TRUE(menu(kNameTag)->accessibleDescription().startsWith(q("The sheet feed was not")));

    make(ppd);
    host->settings->setValue(q("PaperName"), q("Unloaded"), false);
    show(catalogueOf(kSheets));
    EXPECT_EQ(menu(kNameTag)->findText(q("Matte A3")), 1);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(menu(kNameTag)->currentText(), q("Matte A3"));
        EXPECT_EQ(choice("PaperName"), q("Matte A3")) << "what is shown is what is stored";
        panel->restoreValuesAndReturnError(nullptr); // a host may do that at any time
    }
    EXPECT_TRUE(asked("PaperName").isEmpty());

    make();
    show(catalogueOf(kSheets));
    EXPECT_EQ(choice("PaperName"), q("Gloss A4"));
    EXPECT_EQ(asked("PaperName"), words("Gloss A4"));
    EXPECT_EQ(enabledTitles(kFeedTag), words("Cut Sheet"));
}

TEST_F(PaperRules, CountTwoHundredAndFiftySixNamesAsNone)
{
    QList<QVariantMap> records;
    for (int i = 0; i < 256; ++i)
        records.append(sheetRecord(q("Paper %1").arg(i), 300));
    show(catalogueOf(records));
    EXPECT_EQ(menu(kNameTag)->count(), 0);
    EXPECT_EQ(choice("PaperFeed"), q("Roll"));
    records.append(sheetRecord(q("One more"), 300));
    give(catalogueOf(records));
    EXPECT_EQ(menu(kNameTag)->count(), 257);
}

TEST_F(PaperRules, OfferTheResolutionsOfTheChosenSheet)
{
    show(catalogueOf(kSheets + kRolls));
    choose(kFeedTag, "Sheet");
    choose(kNameTag, "Gloss A4");
    EXPECT_EQ(enabledTitles(kResolutionTag), words("300 dpi,610 dpi"));
    choose(kResolutionTag, "610dpi");
    choose(kNameTag, "Matte A3");
    EXPECT_EQ(enabledTitles(kResolutionTag), words("720 dpi"));
    // The correction is shown, stored and told to the host.
    EXPECT_EQ(menu(kResolutionTag)->currentText(), q("720 dpi"));
    EXPECT_EQ(choice("Resolution"), q("720dpi"));
    EXPECT_EQ(asked("Resolution").last(), q("720dpi"));
}

TEST_F(PaperRules, NeverFallBackToTheFirstResolution)
{
    show(catalogueOf({kGloss300, kMatte720}));
    choose(kNameTag, "Matte A3");
    ASSERT_EQ(choice("Resolution"), q("720dpi"));
    choose(kNameTag, "Gloss A4");
    EXPECT_EQ(enabledTitles(kResolutionTag), words("300 dpi"));
    EXPECT_EQ(choice("Resolution"), q("720dpi"));
}

TEST_F(PaperRules, AlwaysOfferTheFirstResolutionOnARoll)
{
    show(catalogueOf(kSheets + kRolls));
    choose(kFeedTag, "Roll");
    choose(kWidthTag, "2100");
    EXPECT_EQ(enabledSurfaces(), words("2"));
    EXPECT_EQ(enabledTitles(kResolutionTag), words("300 dpi,720 dpi"));
}

TEST_F(PaperRules, ForceASurfaceThatTheWidthHas)
{
    show(catalogueOf(kSheets + kRolls));
    choose(kFeedTag, "Roll");
    choose(kWidthTag, "1524");
    EXPECT_EQ(enabledSurfaces(), words("1,3"));
    surfaces()->cells()[2]->click();
    EXPECT_EQ(choice("PaperSurface"), q("3"));
    EXPECT_EQ(enabledTitles(kResolutionTag), words("300 dpi,610 dpi"));
    choose(kWidthTag, "2100");
    EXPECT_EQ(choice("PaperSurface"), q("2"));
    EXPECT_EQ(surfaces()->selectedTag(), 2);
    EXPECT_EQ(asked("PaperSurface").last(), q("2"));
}

TEST_F(PaperRules, ReplaceAWidthThatIsNoLongerLoadedByTheOneSelected)
{
    show(catalogueOf(kSheets + kRolls));
    choose(kFeedTag, "Roll");
    choose(kWidthTag, "2100");
    give(catalogueOf({kNarrow1, kNarrow3}));
    EXPECT_EQ(choice("PaperWidth"), q("1524"));
    EXPECT_EQ(asked("PaperWidth").last(), q("1524"));
}

TEST_F(PaperRules, OfferTheTonesOfTheLoadedPapers)
{
    show(catalogueOf({sheetRecord(q("A"), 300, 0x01), sheetRecord(q("B"), 300, 0x04)}));
    EXPECT_EQ(enabledTitles(kToneTag), words("Standard,Vivid,Warm"));
    choose(kToneTag, "Warm");
    give(catalogueOf({sheetRecord(q("A"), 300, 0x01)}));
    EXPECT_EQ(enabledTitles(kToneTag), words("Standard,Vivid"));
    EXPECT_EQ(choice("PaperTone"), q("Standard"));
    EXPECT_EQ(asked("PaperTone").last(), q("Standard"));

    give(catalogueOf({sheetRecord(q("A"), 300, 0x1FF)}));
    EXPECT_EQ(enabledTitles(kToneTag).size(), 9);
    give(catalogueOf({sheetRecord(q("A"), 300, 0)}));
    EXPECT_FALSE(menu(kToneTag)->isEnabled());
    EXPECT_EQ(enabledTitles(kToneTag).size(), 9);
    give(catalogueOf({sheetRecord(q("A"), 300, 0x100)}));
    EXPECT_FALSE(menu(kToneTag)->isEnabled());
    EXPECT_EQ(enabledTitles(kToneTag), words("Standard"));
}

TEST_F(PaperRules, RunWithoutAView)
{
    make();
    const BeepCounter beeps;
    give(catalogueOf(kSheets + kRolls));
    panel->store("PaperFeed", "Roll");
    panel->store("PaperWidth", "1524");
    give(catalogueOf(kSheets));
    give({});
    EXPECT_EQ(beeps.count, 0);
    EXPECT_FALSE(panel->match());
}

TEST_F(PaperRules, RefuseTheSheetByValueUnderAnyKey)
{
    show(catalogueOf(kSheets + kRolls));
    TestPrinter::say("VLXExtraFeatures", nullptr);
    const LogCapture log;
    panel->store("PaperTone", "Sheet");
    EXPECT_EQ(choice("PaperTone"), q("Standard"));
    EXPECT_EQ(choice("PaperFeed"), q("Roll"));
    EXPECT_EQ(asked("PaperFeed").last(), q("Roll"));
    choose(kFeedTag, "Sheet");
    EXPECT_EQ(choice("PaperFeed"), q("Roll"));
    EXPECT_EQ(menu(kFeedTag)->currentText(), q("Roll"));
    EXPECT_EQ(log.count(q("This printer does not support sheet printing")), 2);
}

} // namespace
} // namespace halvern
