// SPDX-License-Identifier: MIT
#include "tests/panels/features/features_fixture.h"

#include "panels/features/binding_margin.h"
#include "platform/foundation/string_additions.h"
#include "platform/maker/tone_mask.h"

namespace halvern {
namespace {

QStringList list(const char* words)
{
    return q(words).split(u',', Qt::SkipEmptyParts);
}

TEST(PaperIndex, ListsEachResolutionOfAPaperOnceInTheOrderOfTheKeys)
{
    PaperCatalogue catalogue = catalogueOf({sheetRecord(q("Gloss"), 610), sheetRecord(q("Gloss"), 300),
                                            rollRecord(1524, 2, 720), rollRecord(1524, 2, 300)});
    catalogue.insert(q("Gloss-r1000"), sheetRecord(q("Gloss"), 300));
    const PaperIndex index = indexCatalogue(catalogue).index;
    EXPECT_EQ(index.names.value(q("Gloss")), list("300 dpi,610 dpi"));
    EXPECT_EQ(index.widths.value(q("1524")).value(q("2")), list("300 dpi,720 dpi"));
}

TEST(PaperIndex, WalksTheKeysByTheirNumbersAndWithoutRegardToCase)
{
    const auto found = indexCatalogue(catalogueOf({sheetRecord(q("a10"), 300), sheetRecord(q("A2"), 300),
                                                   rollRecord(10160, 1, 300), rollRecord(2030, 1, 300)}));
    EXPECT_EQ(found.namesMet, list("A2,a10"));
    EXPECT_EQ(found.widthsMet, list("2030,10160"));
}

TEST(PaperIndex, RejectsAPaperWithoutNameAndWidthButCountsItsTones)
{
    const auto found = indexCatalogue({{q("odd"), QVariantMap{{q("paperTone"), quint64(0x14)}}},
                                       {q("worse"), q("no record at all")},
                                       {q("roll"), QVariantMap{{q("paperName"), q("")},
                                                               {q("paperWidth"), qint64(610)},
                                                               {q("paperTone"), quint64(1)}}}});
    EXPECT_EQ(found.badPapers.size(), 2);
    EXPECT_EQ(found.tones, 0x15U);
    // A roll without a surface has its place, but no resolution.
    ASSERT_TRUE(found.index.widths.contains(q("610")));
    EXPECT_TRUE(found.index.widths.value(q("610")).isEmpty());
}

TEST(PaperIndex, ShowsWidthCodesAsMillimetres)
{
    const QList<QPair<QString, QString>> cases{
        {q("1524"), q("152.4 mm")}, {q("2030"), q("203 mm")}, {q("5"), q(".5 mm")}, {q("0"), q(" mm")}};
    for (const auto& [code, title] : cases)
        EXPECT_EQ(paperWidthTitle(code), title);
    EXPECT_FALSE(paperWidthTitle(q("")));
}

TEST(NumericalOrder, EqualOnesKeepTheirOrder)
{
    EXPECT_EQ(KSTRVL_NSStringAdditions::sortedNumerically(list("b1,a10,c,A2,B01,b001")),
              list("A2,a10,b1,B01,b001,c"));
}

TEST(BindingMargin, TurnsAQuarterAndBack)
{
    const QList<QPair<QString, QString>> turns{{q("Bottom"), q("Right")}, {q("Top"), q("Left")},
                                               {q("Left"), q("Bottom")},  {q("Right"), q("Top")},
                                               {q("None"), q("None")},    {q("Diagonal"), q("Diagonal")}};
    for (const auto& [shown, stored] : turns) {
        EXPECT_EQ(binding::storedOfShown(shown), stored);
        EXPECT_EQ(binding::shownOfStored(stored), shown);
    }
}

} // namespace
} // namespace halvern
