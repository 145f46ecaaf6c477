// SPDX-License-Identifier: MIT
#include "dialog/session/paper_keeper.h"
#include "dialog/session/starting_options.h"
#include "platform/printing/print_settings.h"
#include "tests/dialog/model_support.h"

namespace halvern {
namespace {

using Answer = PaperKeeper::Answer;

PrinterOffer offerWith(bool sheets, bool rolls, bool turns = true)
{
    PrinterOffer offer{{}, true, turns};
    if (sheets)
        offer.papers.append({q("Matte A4"), {}, q("2100"), q("3"), {300, 720}, {}});
    if (rolls)
        offer.papers.append({{}, q("152.4 mm"), q("1524"), q("3"), {300}, {}});
    return offer;
}

} // namespace

TEST(PaperKeeper, LetsAPanelCorrectOnlyWhatThePrinterDoesNotOffer)
{
    const PrinterOffer unknown;

    struct Case {
        const char* key;
        const char* chosen;
        const char* proposed;
        PrinterOffer offer;
        Answer answer;
    };

    for (const auto& c : {
             Case{"PaperFeed", "Sheet", "Roll", unknown, Answer::refuse},
             Case{"PaperFeed", "Sheet", "Roll", offerWith(true, true), Answer::refuse},
             Case{"PaperFeed", "Sheet", "Roll", offerWith(false, true), Answer::accept},
             Case{"PaperFeed", "Sheet", "Roll", PrinterOffer{{}, false, false}, Answer::accept},
             Case{"PaperFeed", "Roll", "Sheet", offerWith(true, false), Answer::accept},
             Case{"PaperName", "Gone", "Matte A4", offerWith(true, true), Answer::accept},
             Case{"PaperName", "Gone", "Matte A4", unknown, Answer::refuse},
             Case{"PaperName", "Loaded", "Matte A4", offerWith(true, true), Answer::fillIn},
             Case{"PaperName", "Loaded", "Art A4", offerWith(true, true), Answer::refuse},
             Case{"PaperName", "Loaded", "Matte A4", unknown, Answer::refuse},
             Case{"PaperName", "Matte A4", "Other", offerWith(true, true), Answer::refuse},
             Case{"PaperWidth", "1270", "1524", offerWith(true, true), Answer::accept},
             Case{"PaperSurface", "3", "1", offerWith(true, true), Answer::refuse},
             Case{"PaperSurface", "1", "3", offerWith(true, true), Answer::accept},
             Case{"TwoSided", "LongEdge", "None", offerWith(true, true), Answer::refuse},
             Case{"TwoSided", "LongEdge", "None", offerWith(true, true, false), Answer::accept},
             Case{"PaperTone", "Warm", "Standard", unknown, Answer::accept},
         }) {
        const auto model = tessarinModel();
        PrintSettings settings;
        ASSERT_TRUE(model->change(q(c.key), q(c.chosen)).accepted) << c.key;
        PaperKeeper keeper(*model, settings, c.offer);
        EXPECT_EQ(keeper.judge(q(c.key), q(c.proposed)), c.answer)
            << c.key << ' ' << c.chosen << ' ' << c.proposed << ' ' << c.offer.papers.size();
    }
}

TEST(StartingOptions, ASheetChosenByItsKeywordIsTheLoadedOneOfThatName)
{
    for (const auto& [chosen, sheet] : {std::pair("MatteA4", "Matte A4"),
                                        {"Matte A4", "Matte A4"},
                                        {"PhotoGlossA4", "PhotoGlossA4"},
                                        {"Loaded", "Matte A4"}}) {
        const auto model = tessarinModel();
        ASSERT_TRUE(model->change(q("PaperName"), q(chosen)).accepted);
        nameLoadedSheet(*model, offerWith(true, true));
        EXPECT_EQ(model->value(q("PaperName")), q(sheet));
    }
}

TEST(PaperKeeper, KeepsTheSheetsNameOutOfSightUntilAPanelKnowsSheets)
{
    const auto model = tessarinModel();
    PrintSettings settings;
    const QString name = q("PaperName");
    ASSERT_TRUE(model->change(name, q("PhotoGlossA4")).accepted);
    PaperKeeper keeper(*model, settings, {});
    keeper.judge(q("PaperFeed"), q("Roll"));
    EXPECT_FALSE(ppd::markedChoice(model->file(), name));
    EXPECT_EQ(ppd::defaultChoice(model->file(), name), q(""));
    EXPECT_EQ(model->value(name), q("PhotoGlossA4")) << "it is printed all the same";
    keeper.judge(name, q("Matte A4"));
    EXPECT_EQ(ppd::markedChoice(model->file(), name)->keyword, q("PhotoGlossA4"));
    EXPECT_EQ(ppd::defaultChoice(model->file(), name), q("Loaded"));
    const OptionValues overdue = keeper.takeOffer(offerWith(true, false));
    EXPECT_EQ(overdue, (OptionValues{{name, q("Matte A4")}})) << "the name has turned out to be gone";
}

} // namespace halvern
