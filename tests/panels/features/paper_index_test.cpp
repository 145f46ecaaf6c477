#include "tests/panels/features/features_fixture.h"

#include "panels/features/binding_margin.h"
#include "platform/foundation/string_additions.h"
#include "platform/maker/tone_mask.h"

namespace halvern {

namespace {

QStringList list(const char* words)
{
    return QString::fromUtf8(words).split(u',', Qt::SkipEmptyParts);
}

TEST(PaperIndex, ListsEachResolutionOfAPaperOnceInTheOrderOfTheKeys)
{
    PaperCatalogue catalogue =
        catalogueOf({sheetRecord(QStringLiteral("Gloss"), 610), sheetRecord(QStringLiteral("Gloss"), 300),
                     rollRecord(1524, 2, 720), rollRecord(1524, 2, 300)});
    catalogue.insert(QStringLiteral("Gloss-r1000"), sheetRecord(QStringLiteral("Gloss"), 300));
    const PaperIndex index = indexCatalogue(catalogue).index;
    EXPECT_EQ(index.names.value(QStringLiteral("Gloss")), list("300 dpi,610 dpi"));
    EXPECT_EQ(index.widths.value(QStringLiteral("1524")).value(QStringLiteral("2")), list("300 dpi,720 dpi"));
}

TEST(PaperIndex, WalksTheKeysByTheirNumbersAndWithoutRegardToCase)
{
    const auto found = indexCatalogue(
        catalogueOf({sheetRecord(QStringLiteral("a10"), 300), sheetRecord(QStringLiteral("A2"), 300),
                     rollRecord(10160, 1, 300), rollRecord(2030, 1, 300)}));
    EXPECT_EQ(found.namesMet, list("A2,a10"));
    EXPECT_EQ(found.widthsMet, list("2030,10160"));
}

TEST(PaperIndex, RejectsAPaperWithoutNameAndWidthButCountsItsTones)
{
    const auto found = indexCatalogue(
        {{QStringLiteral("odd"), QVariantMap{{QStringLiteral("paperTone"), quint64(0x14)}}},
         {QStringLiteral("worse"), QStringLiteral("no record at all")},
         {QStringLiteral("roll"), QVariantMap{{QStringLiteral("paperName"), QStringLiteral("")},
                                              {QStringLiteral("paperWidth"), qint64(610)},
                                              {QStringLiteral("paperTone"), quint64(1)}}}});
    EXPECT_EQ(found.badPapers.size(), 2);
    EXPECT_EQ(found.tones, 0x15U);
    // A roll without a surface has its place, but no resolution.
    ASSERT_TRUE(found.index.widths.contains(QStringLiteral("610")));
    EXPECT_TRUE(found.index.widths.value(QStringLiteral("610")).isEmpty());
}

TEST(PaperIndex, CutsResolutionsTowardZeroAndTakesAMissingOneForZero)
{
    const auto titleOf = [](const QVariant& resolution) {
        QVariantMap record{{QStringLiteral("paperName"), QStringLiteral("P")}};
        if (resolution.isValid())
            record.insert(QStringLiteral("paperResolution"), resolution);
        return indexCatalogue({{QStringLiteral("P"), record}})
            .index.names.value(QStringLiteral("P"))
            .value(0);
    };
    EXPECT_EQ(titleOf(qint64(3009)), QStringLiteral("300 dpi"));
    EXPECT_EQ(titleOf(quint64(6100)), QStringLiteral("610 dpi"));
    EXPECT_EQ(titleOf(qint64(-9)), QStringLiteral("0 dpi"));
    EXPECT_EQ(titleOf({}), QStringLiteral("0 dpi"));
}

TEST(PaperIndex, ShowsWidthCodesAsMillimetres)
{
    const QList<QPair<QString, QString>> cases{{QStringLiteral("1524"), QStringLiteral("152.4 mm")},
                                               {QStringLiteral("2030"), QStringLiteral("203 mm")},
                                               {QStringLiteral("5"), QStringLiteral(".5 mm")},
                                               {QStringLiteral("0"), QStringLiteral(" mm")}};
    for (const auto& [code, title] : cases)
        EXPECT_EQ(paperWidthTitle(code), title);
    EXPECT_FALSE(paperWidthTitle(QStringLiteral("")));
}

TEST(NumericalOrder, EqualOnesKeepTheirOrder)
{
    EXPECT_EQ(KSTRVL_NSStringAdditions::sortedNumerically(list("b1,c,B01,b001")), list("b1,B01,b001,c"));
}

TEST(BindingMargin, TurnsAQuarterAndBack)
{
    const QList<QPair<QString, QString>> turns{{QStringLiteral("Bottom"), QStringLiteral("Right")},
                                               {QStringLiteral("Top"), QStringLiteral("Left")},
                                               {QStringLiteral("Left"), QStringLiteral("Bottom")},
                                               {QStringLiteral("Right"), QStringLiteral("Top")},
                                               {QStringLiteral("None"), QStringLiteral("None")},
                                               {QStringLiteral("Diagonal"), QStringLiteral("Diagonal")}};
    for (const auto& [shown, stored] : turns) {
        EXPECT_EQ(binding::storedOfShown(shown), stored);
        EXPECT_EQ(binding::shownOfStored(stored), shown);
    }
}

TEST(ToneMask, CountsItsLowEightBitsOnly)
{
    EXPECT_TRUE(tone::allowsAny(0x180));
}

} // namespace

} // namespace halvern
