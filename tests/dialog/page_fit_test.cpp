// SPDX-License-Identifier: MIT
#include "dialog/options/page_fit.h"
#include "tests/dialog/model_support.h"

namespace halvern {

TEST(PageFit, TheSizeInASheetsNameIsReadWhereItIsPlain)
{
    struct Case {
        const char* name;
        QSizeF size; // invalid: none
    };

    for (const Case& c : {
             Case{"Photo Gloss 102x152", {102, 152}},
             Case{"Matte 127 x 177.8 mm", {127, 177.8}},
             Case{"Photo Satin A4", {210, 297}},
             Case{"A3 Photo Rag", {297, 420}},
             Case{"Matte Postcard", {100, 148}},
             Case{"Photo 13x18", {}},
             Case{"As Loaded", {}},
             Case{"Fine Art", {}},
             Case{"", {}},
         }) {
        const std::optional<QSizeF> size = sizeInName(q(c.name));
        EXPECT_EQ(size.value_or(QSizeF()), c.size) << c.name;
    }
}

TEST(PageFit, APageThatCannotBeOnThePaperIsToldWithOneThatCan)
{
    PrinterOffer offer;
    offer.papers.append({q("Wide Art"), {}, q("1016"), q("3"), {300}, {}});

    struct Case {
        std::vector<std::pair<const char*, const char*>> chosen;
        const char* fitting; // empty: it fits
    };

    for (const Case& c : {
             Case{{{"PaperFeed", "Roll"}, {"PaperWidth", "1524"}, {"PageSize", "A4"}}, "Roll1524x2032"},
             Case{{{"PaperFeed", "Roll"}, {"PaperWidth", "1270"}, {"PageSize", "8x10"}}, "5x7"},
             Case{{{"PaperFeed", "Roll"}, {"PaperWidth", "2100"}, {"PageSize", "A4"}}, ""},
             Case{{{"PaperFeed", "Roll"}, {"PaperWidth", "1270"}, {"PageSize", "4x6"}}, ""},
             Case{{{"PaperName", "PhotoGloss102x152"}, {"PageSize", "A4"}}, "4x6"},
             Case{{{"PaperName", "PhotoGloss102x152"}, {"PageSize", "Custom.288x576"}}, "4x6"},
             Case{{{"PaperName", "Photo Satin 127x178"}, {"PageSize", "Custom.400x505"}}, "5x7"},
             Case{{{"PaperName", "Photo Satin 127x178"}, {"PageSize", "5x7"}}, ""},
             Case{{{"PaperName", "PhotoGlossA4"}, {"PageSize", "4x6"}}, ""},
             Case{{{"PaperName", "Wide Art"}, {"PageSize", "A4"}}, "4x6"},
             Case{{{"PaperName", "Loaded"}, {"PageSize", "A3"}}, ""},
         }) {
        const auto model = tessarinModel();
        for (const auto& [key, choice] : c.chosen)
            ASSERT_TRUE(model->change(q(key), q(choice)).accepted) << key << ' ' << choice;
        const std::optional<PageMisfit> misfit = findMisfit(*model, offer);
        EXPECT_EQ(misfit ? misfit->fitting : QString(), q(c.fitting)) << c.chosen.back().second;
    }
}

TEST(PageFit, WhereNobodyChoseASheetTheSmallestThatDoesIsTaken)
{
    PrinterOffer offer;
    for (const auto& [name, dotsPerInch] :
         {std::pair("Art A4", 360), {"Matte A4", 300}, {"Gloss 102x152", 300}, {"Gloss 90x130", 300}})
        offer.papers.append({q(name), {}, {}, q("1"), {dotsPerInch}, {}});
    const auto model = tessarinModel();
    for (const auto& [page, sheet] : {std::pair("4x6", "Gloss 102x152"), {"A5", "Matte A4"}, {"A3", ""}}) {
        ASSERT_TRUE(model->change(q("PageSize"), q(page)).accepted);
        EXPECT_EQ(fittingSheet(*model, offer), q(sheet)) << page;
    }
}

} // namespace halvern
