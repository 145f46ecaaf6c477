// SPDX-License-Identifier: MIT
#include "dialog/options/custom_paper.h"
#include "tests/dialog/model_support.h"

namespace halvern {
namespace {

QByteArray smallPpd()
{
    return ppdHeader() + ppdOption("Feed", {"Sheet/Cut sheet", "Roll/Paper roll"}) +
           ppdOption("Sides", {"One/One side", "Both/Both sides"}) +
           ppdOption("Gloss", {"Off/No", "On/Yes"}) +
           "*cupsUIConstraints NoResolver: \"*Feed Roll *Sides Both\"\n"
           "*cupsUIConstraints GlossOnRoll: \"*Feed Roll *Gloss On\"\n"
           "*cupsUIResolver GlossOnRoll: \"*Gloss Off *Feed Sheet\"\n";
}

} // namespace

TEST(PpdModel, MarksTheDefaultsAndAnswersTheUsersWords)
{
    const auto model = tessarinModel();
    ASSERT_TRUE(model);
    EXPECT_EQ(model->value(q("PageSize")), q("4x6"));
    EXPECT_EQ(model->optionText(q("PaperFeed")), q("Paper Feed"));
    EXPECT_EQ(model->choiceText(q("Resolution"), q("77dpi")), q("77dpi"));
    EXPECT_EQ(model->resolution(), 300);
    EXPECT_TRUE(model->kept().isEmpty());
}

TEST(PpdModel, AResolverChangesTheOtherOptionAndSaysSo)
{
    const auto model = tessarinModel();
    ASSERT_TRUE(model->change(q("TwoSided"), q("LongEdge")).accepted);
    const ChangeResult result = model->change(q("PaperFeed"), q("Roll"));
    ASSERT_TRUE(result.accepted) << qPrintable(result.refusal);
    EXPECT_TRUE(asTexts(result.sideChanges).contains(q("TwoSided=None")));
    EXPECT_EQ(model->value(q("TwoSided")), q("None"));
    EXPECT_EQ(model->value(q("PaperFeed")), q("Roll"));
    EXPECT_EQ(model->value(q("PageSize")), q("4x6")) << "what has nothing to do with it stays";
    for (const SideChange& change : result.sideChanges)
        EXPECT_FALSE(change.optionText.isEmpty() || change.choiceText.isEmpty());
}

TEST(PpdModel, RefusesAClashWithoutResolverNamingBothSidesAndChangesNothing)
{
    const auto model = modelOf(smallPpd());
    ASSERT_TRUE(model);
    ASSERT_TRUE(model->change(q("Sides"), q("Both")).accepted);
    const QMap<QString, QString> before = model->values();
    const ChangeResult result = model->change(q("Feed"), q("Roll"));
    EXPECT_FALSE(result.accepted);
    for (const char* word : {"Feed title", "Paper roll", "Sides title", "Both sides"})
        EXPECT_TRUE(result.refusal.contains(q(word))) << word << " in: " << qPrintable(result.refusal);
    EXPECT_EQ(model->values(), before);
    EXPECT_TRUE(ppd::markedChoice(model->file(), q("Feed"))->keyword == q("Sheet"));
}

TEST(PpdModel, AClashThatWasThereBeforeDoesNotBlockUnrelatedChoices)
{
    const auto model = modelOf(smallPpd());
    model->restore({{q("Feed"), q("Roll")}, {q("Sides"), q("Both")}});
    const ChangeResult result = model->change(q("PageSize"), q("A4"));
    EXPECT_TRUE(result.accepted) << qPrintable(result.refusal);
    EXPECT_TRUE(result.sideChanges.isEmpty());
    EXPECT_EQ(model->value(q("Sides")), q("Both"));
}

TEST(PpdModel, CustomValuesAreKeptWithinTheirLimitsAndLeaveNoMark)
{
    const auto model = tessarinModel();
    const QString intensity = q("SharpnessIntensity");
    ASSERT_TRUE(model->change(intensity, q("1.24")).accepted);
    EXPECT_EQ(model->value(intensity), q("1.24"));
    EXPECT_FALSE(ppd::markedChoice(model->file(), intensity)) << "no mark, not even \"Custom\"";
    const ChangeResult tooMuch = model->change(intensity, q("5.01"));
    EXPECT_FALSE(tooMuch.accepted);
    EXPECT_TRUE(tooMuch.refusal.contains(q("Intensity")) && tooMuch.refusal.contains(q("5")));
    for (const char* bad : {"-0.1", "", "1,5", "Custom", "1.24 ", "nan"})
        EXPECT_FALSE(model->change(intensity, q(bad)).accepted) << bad;
    EXPECT_EQ(model->value(intensity), q("1.24"));
    ASSERT_TRUE(model->change(intensity, q("Custom.2.5")).accepted);
    EXPECT_EQ(model->value(intensity), q("2.5"));
    ASSERT_TRUE(model->change(q("SharpnessRadius"), 7).accepted) << "a number, as panels may hold it";
    EXPECT_FALSE(model->change(q("SharpnessRadius"), q("7.5")).accepted) << "a whole number is asked for";
}

TEST(PpdModel, WhatThePpdDoesNotKnowIsKept)
{
    const auto model = tessarinModel();
    ASSERT_TRUE(model->change(q("CVP1"), q("true")).accepted);
    ASSERT_TRUE(model->change(q("PaperTone"), q("Midnight")).accepted);
    EXPECT_EQ(model->value(q("CVP1")), q("true"));
    EXPECT_EQ(model->values().value(q("PaperTone")), q("Midnight"));
    EXPECT_FALSE(ppd::markedChoice(model->file(), q("PaperTone")));
    EXPECT_FALSE(model->change(q("CVP1"), QVariant()).accepted) << "nothing is no value";
    EXPECT_FALSE(model->change(QString(), q("x")).accepted);
}

TEST(PpdModel, PageSizesThatThePrinterCannotTakeAreRefused)
{
    const auto model = tessarinModel();
    EXPECT_FALSE(model->change(q("PageSize"), q("Tabloid")).accepted);
    EXPECT_FALSE(model->change(q("PageSize"), q("Custom.20x20")).accepted);
    EXPECT_TRUE(model->change(q("PageSize"), customKeyword(paperLimits(model->file())->least)).accepted)
        << "hundredths of a millimetre are a little less";
    ASSERT_TRUE(model->change(q("PageRegion"), q("A4")).accepted);
    ASSERT_TRUE(model->change(q("PageSize"), q("Custom.300x500")).accepted);
    EXPECT_FALSE(ppd::markedChoice(model->file(), q("PageRegion"))) << "a second size in the job";
    EXPECT_EQ(model->sheet().paper, QSizeF(300, 500));
    ASSERT_TRUE(model->change(q("PageSize"), q("A4")).accepted);
    EXPECT_NEAR(model->sheet().paper.height(), 841.89, 0.01);
}

TEST(PpdModel, SheetsHaveTheirImageableAreaFromTheTopLeft)
{
    const auto model = modelOf(ppdHeader().replace("\"9 9 586 833\"", "\"10 20 580 812\""));
    ASSERT_TRUE(model);
    EXPECT_EQ(model->sheet().imageable, QRectF(10, 30, 570, 792));
    const auto tessarin = tessarinModel();
    ASSERT_TRUE(tessarin->change(q("PageSize"), q("4x6.Fullbleed")).accepted);
    EXPECT_EQ(tessarin->sheet().imageable, QRectF(0, 0, 288, 432)) << "borderless";
}

TEST(PpdModel, GivenOptionsGoInWhateverTheirOrderIfTheyGoTogetherInTheEnd)
{
    const QByteArray ppd =
        ppdHeader() + ppdOption("Quality", {"Plain", "Photo"}) + ppdOption("Edge", {"White", "Full"}) +
        ppdOption("Tray", {"Main", "Rear"}) +
        "*UIConstraints: *Edge Full *Quality Plain\n*UIConstraints: *Tray Rear *Edge Full\n";
    GivenOptions given = givenBy(OptionOrigin::typed, {{q("Edge"), q("Full")}, {q("Quality"), q("Photo")}});
    for (int turn = 0; turn < 2; ++turn) {
        const auto model = modelOf(ppd);
        EXPECT_TRUE(model->apply(given).leftOut.isEmpty());
        EXPECT_EQ(model->value(q("Edge")) + model->value(q("Quality")), q("FullPhoto"));
        given.swapItemsAt(0, 1);
    }
    const auto model = modelOf(ppd);
    const ApplyResult result = model->apply(givenBy(OptionOrigin::saved, {{q("Tray"), q("Rear")}}) + given);
    ASSERT_EQ(result.leftOut.size(), 1) << "what is saved gives way to what is typed";
    EXPECT_EQ(result.leftOut.front().origin, OptionOrigin::saved);
    EXPECT_EQ(model->value(q("Tray")) + model->value(q("Edge")), q("MainFull"));
    EXPECT_EQ(modelOf(ppd)->apply(givenBy(OptionOrigin::typed, {{q("Edge"), q("Full")}})).leftOut.size(), 1);
    const auto custom = modelOf(ppd + ppdOption("Amount", {"Auto"}) +
                                "*CustomAmount True: \"pop\"\n*ParamCustomAmount Value/Value: 1 int 0 400\n"
                                "*UIConstraints: *Amount Custom *Quality Plain\n");
    EXPECT_EQ(custom->apply(givenBy(OptionOrigin::typed, {{q("Amount"), q("Custom.120")}})).leftOut.size(),
              1);
    const auto settled = modelOf(smallPpd());
    settled->change(q("Gloss"), q("On"));
    const ApplyResult roll = settled->apply(givenBy(OptionOrigin::typed, {{q("Feed"), q("Roll")}}));
    ASSERT_EQ(roll.settled.size(), 1);
    EXPECT_EQ(asTexts(roll.settled.front().sideChanges), QStringList{q("Gloss=Off")});
    EXPECT_EQ(settled->value(q("Feed")) + settled->value(q("Gloss")), q("RollOff"));
}

TEST(PpdModel, GivenOptionsThatThePrinterDoesNotKnowAreLeftOutWithTheNearOnes)
{
    const struct {
        const char* key;
        const char* value;
        const char* words; ///< of the sentence; empty if it is followed
    } cases[] = {
        {"PaperTone", "Warm", ""},
        {"papertone", "warm", ""},
        {"PaperTone", "Wram", "Did you mean Warm?"},
        {"PaperTone", "Nonsense", "It has: "},
        {"PaprTone", "Warm", "Did you mean PaperTone?"},
        {"SharpnessIntensity", "99", "Intensity"},
        {"SharpnessIntensity", "1.24", ""},
        {"PageSize", "Tabloid", "no page size"},
        {"PaperName", "My own 4x6", ""},
        {"CVP1", "any text", ""},
        {"job-priority", "70", ""},
    };

    for (const auto& c : cases) {
        const auto model = tessarinModel();
        const OptionValues one{{q(c.key), q(c.value)}};
        const ApplyResult result = model->apply(givenBy(OptionOrigin::typed, one));
        EXPECT_EQ(result.leftOut.isEmpty(), *c.words == 0) << c.key << '=' << c.value;
        if (!result.leftOut.isEmpty()) {
            EXPECT_TRUE(result.leftOut.front().sentence.contains(q(c.words)))
                << qPrintable(result.leftOut.front().sentence);
        }
    }
}

TEST(PpdModel, TheServersOwnNamesAreUnderstoodOrRefusedWithASentence)
{
    const struct {
        const char* key;
        const char* value;
        const char* result;
    } cases[] = {{"media", "iso_a4_210x297mm", "PageSize=A4"},
                 {"media", "na_index-4x6_4x6in", "PageSize=4x6"},
                 {"media", "om_own_100x150mm", "PageSize=Custom.100x150mm"},
                 {"media", "A4", "PageSize=A4"},
                 {"PageRegion", "A4", "PageSize=A4"},
                 {"sides", "two-sided-short-edge", "Duplex=DuplexTumble"},
                 {"number-up", "1", ""},
                 {"PaperTone", "Gone", "PaperTone=Gone"}};

    const auto model = tessarinModel();
    for (const auto& c : cases) {
        const UnderstoodOptions got =
            understand(model->file(), givenBy(OptionOrigin::typed, {{q(c.key), q(c.value)}}));
        QStringList texts;
        for (const GivenOption& option : got.options)
            texts.append(option.key + u'=' + option.value);
        EXPECT_EQ(texts.join(u' '), q(c.result)) << c.key;
        EXPECT_TRUE(got.leftOut.isEmpty()) << c.key;
    }
    for (const char* refused : {"number-up=2", "scaling=50", "landscape", "copies=2", "media=Nonsense"}) {
        const UnderstoodOptions got =
            understand(model->file(), givenBy(OptionOrigin::typed, {*parseOption(q(refused))}));
        EXPECT_EQ(got.leftOut.size(), 1) << refused;
        EXPECT_TRUE(got.options.isEmpty()) << refused;
    }
    const UnderstoodOptions page =
        understand(model->file(), givenBy(OptionOrigin::typed,
                                          {{q("print-scaling"), q("fill")}, {q("Collate"), q("False")}}));
    EXPECT_EQ(page.page.scaling, q("fill"));
    EXPECT_EQ(page.page.isCollated, false);
    const OptionValues both{{q("PageSize"), q("A4")}, {q("PageRegion"), q("4x6")}};
    EXPECT_EQ(understand(model->file(), givenBy(OptionOrigin::saved, both)).options.size(), 1);
}

TEST(PpdModel, TheEquipmentTakesPartInTheConstraintsAndIsNobodysToChange)
{
    const auto model =
        modelOf(ppdHeader() + "*OpenGroup: InstallableOptions/Installed\n" +
                ppdOption("Turner", {"False/Not there", "True/There"}) + "*CloseGroup: InstallableOptions\n" +
                ppdOption("Sides", {"One", "Both"}) + "*UIConstraints: *Sides Both *Turner False\n");
    EXPECT_TRUE(model->change(q("Sides"), q("Both")).refusal.contains(q("Turner title: Not there")));
    EXPECT_FALSE(model->change(q("Turner"), q("True")).accepted);
    EXPECT_EQ(model->apply(givenBy(OptionOrigin::saved, {{q("Turner"), q("True")}})).leftOut.size(), 1);
    EXPECT_FALSE(model->values().contains(q("Turner"))) << "it is no part of a job";
    const QList<ChoiceItem> sides = model->option(q("Sides")).choices;
    EXPECT_TRUE(sides[0].obstacle.isEmpty() && !sides[1].obstacle.isEmpty());
}

TEST(PpdModel, APanelMayKeepWhatBeginsWithANumberTheCommandLineMayNot)
{
    const struct {
        const char* key;
        const char* value;
        bool whole;
        bool leading;
    } cases[] = {
        {"Brightness", "-12", true, true},
        {"Brightness", "-", false, true},
        {"Brightness", "", false, true},
        {"Brightness", "12.", false, true},
        {"Brightness", "abc", false, true},
        {"Brightness", "Custom.101", false, true},
        {"Brightness", "101", false, false},
        {"Brightness", "-101%", false, false},
        {"SharpnessIntensity", "1.", true, true},
        {"SharpnessIntensity", "5.1", false, false},
        {"SharpnessIntensity", "nan", false, true},
    };

    for (const auto& c : cases) {
        using ppd_lookup::NumberReading;
        for (const NumberReading reading : {NumberReading::whole, NumberReading::leading}) {
            const auto model = tessarinModel();
            const bool wanted = reading == NumberReading::whole ? c.whole : c.leading;
            EXPECT_EQ(model->change(q(c.key), q(c.value), reading).accepted, wanted)
                << c.key << ' ' << c.value;
            EXPECT_EQ(model->isKept(q(c.key)), wanted);
            if (wanted) {
                EXPECT_EQ(model->value(q(c.key)), q(c.value)) << "what the panel's field shows is sent";
            }
        }
    }
}

TEST(PpdModel, LimitsAreTheOnesThatThePpdWrites)
{
    const auto model =
        modelOf(ppdHeader() + ppdOption("Strength", {"1"}) +
                "*CustomStrength True: \"pop\"\n*ParamCustomStrength Factor: 1 real 0.1 0.7\n");
    ASSERT_TRUE(model);
    EXPECT_TRUE(model->change(q("Strength"), q("0.1")).accepted);
    EXPECT_TRUE(model->change(q("Strength"), q("0.7")).accepted);
    EXPECT_FALSE(model->change(q("Strength"), q("0.09")).accepted);
}

} // namespace halvern
