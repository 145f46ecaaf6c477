// SPDX-License-Identifier: MIT
#include "platform/printing/page_format.h"
#include "platform/printing/ppd.h"
#include "platform/printing/print_settings.h"
#include "tests/support/test.h"

#include <array>

namespace halvern {

TEST(PrintSettingsTest, ALockedKeyTakesLockedValuesOnly)
{
    PrintSettings settings;
    settings.setValue(q("Key"), 1, true);
    EXPECT_EQ(settings.setValue(q("Key"), 2, false), kPrintingKeyLocked);
    EXPECT_EQ(settings.setValue(q("Key"), 3, true), 0);
    EXPECT_EQ(settings.values().value(q("Key")), QVariant(3));
}

TEST(PageFormatTest, TheAdjustedSheetIsTheUprightOneTurned)
{
    const PageRect paper{0, 0, 842, 595};
    const PageRect imageable{10, 20, 812, 555};
    const auto sheet = [&](PageOrientation turn) {
        PageRect rect;
        PageFormat(paper, imageable, turn).getAdjustedPaperRect(rect);
        return std::array{rect.top, rect.left, rect.bottom - rect.top, rect.right - rect.left};
    };
    using Wanted = std::array<double, 4>;
    EXPECT_EQ(sheet(PageOrientation::portrait), (Wanted{-10, -20, 842, 595}));
    EXPECT_EQ(sheet(PageOrientation::reversePortrait), (Wanted{-30, -40, 842, 595}));
    EXPECT_EQ(sheet(PageOrientation::landscape), (Wanted{-20, -30, 595, 842}));
    EXPECT_EQ(sheet(PageOrientation::reverseLandscape), (Wanted{-40, -10, 595, 842}));
}

TEST(PpdTest, AMalformedFileDoesNotOpenAndSaysWhere)
{
    QTemporaryDir folder;
    const QString broken = writeFile(folder.filePath(q("broken.ppd")),
                                     ppdHeader() + "*OpenUI *A/A: PickOne\n*OpenUI *B/B: PickOne\n" +
                                         QByteArray(300, 'x') + "\n");
    QString why;
    EXPECT_EQ(ppd::open(broken, &why), nullptr);
    EXPECT_TRUE(why.contains(QLatin1String("line"))) << qPrintable(why);
    EXPECT_EQ(ppd::open(folder.filePath(q("absent.ppd")), &why), nullptr);
}

TEST(PpdTest, LimitsThatLeaveNoChoiceAreNoRange)
{
    for (const auto& [limits, isRange] : {std::pair("1 2", true), {"1 1", false}, {"2 1", false}}) {
        const ppd::File file =
            ppdOf(ppdHeader() + ppdOption("Strength", {"1"}) +
                  "*CustomStrength True: \"pop\"\n*ParamCustomStrength Factor: 1 real " + limits + "\n");
        EXPECT_EQ(ppd::customRange(file.get(), q("Strength")).has_value(), isRange) << limits;
    }
}

} // namespace halvern
