#include "platform/printing/page_format.h"
#include "platform/printing/ppd.h"
#include "platform/printing/print_settings.h"
#include "tests/support/fake_host.h"

#include <QFile>

#include <gtest/gtest.h>

namespace halvern {

TEST(PrintSettingsTest, AnAbsentKeyAnswersAStatusAndClearsTheHolder)
{
    PrintSettings settings;
    QVariant holder = QStringLiteral("before");
    EXPECT_NE(settings.getValue(QStringLiteral("Key"), holder), 0);
    EXPECT_FALSE(holder.isValid());
    EXPECT_EQ(settings.setValue(QStringLiteral("Key"), 7, false), 0);
    EXPECT_EQ(settings.getValue(QStringLiteral("Key"), holder), 0);
    EXPECT_EQ(holder, QVariant(7));
    EXPECT_NE(settings.setValue(QString(), 7, false), 0);
}

TEST(PrintSettingsTest, ALockedKeyTakesLockedValuesOnly)
{
    PrintSettings settings;
    settings.setValue(QStringLiteral("Key"), 1, true);
    EXPECT_EQ(settings.setValue(QStringLiteral("Key"), 2, false), kPrintingKeyLocked);
    EXPECT_EQ(settings.setValue(QStringLiteral("Key"), 3, true), 0);
    EXPECT_EQ(settings.values().value(QStringLiteral("Key")), QVariant(3));
}

TEST(PageFormatTest, TheAdjustedSheetIsTheUprightOneTurned)
{
    const PageRect paper{0, 0, 842, 595};
    const PageRect imageable{10, 20, 812, 555};
    PageRect rect;
    PageFormat(paper, imageable, PageOrientation::portrait).getUnadjustedPaperRect(rect);
    EXPECT_EQ(rect.bottom - rect.top, 842);
    EXPECT_EQ(rect.left, -20);
    for (const PageOrientation turned : {PageOrientation::landscape, PageOrientation::reverseLandscape}) {
        PageFormat(paper, imageable, turned).getAdjustedPaperRect(rect);
        EXPECT_EQ(rect.bottom - rect.top, 595);
        EXPECT_EQ(rect.right - rect.left, 842);
        EXPECT_LE(rect.top, 0);
        EXPECT_LE(rect.left, 0);
    }
    PageFormat(paper, imageable, PageOrientation::reversePortrait).getAdjustedPaperRect(rect);
    EXPECT_EQ(rect.bottom - rect.top, 842);
    EXPECT_EQ(rect.top, -30);
}

TEST(PpdTest, AMalformedFileDoesNotOpenAndSaysWhere)
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("broken.ppd")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(ppdHeader() + "*OpenUI *A/A: PickOne\n*OpenUI *B/B: PickOne\n" + QByteArray(300, 'x') + "\n");
    file.close();
    QString why;
    EXPECT_EQ(ppd::open(file.fileName(), &why), nullptr);
    EXPECT_TRUE(why.contains(QLatin1String("line"))) << qPrintable(why);
    EXPECT_EQ(ppd::open(folder.filePath(QStringLiteral("absent.ppd")), &why), nullptr);
}

TEST(PpdTest, MarksOnlyWhatThePpdLists)
{
    FakeHost host(ppdHeader() + ppdOption("A", {"1/One", "2/Two"}));
    ppd_file_t* file = host.ppdFile();
    EXPECT_FALSE(ppd::mark(file, QStringLiteral("A"), QStringLiteral("3")));
    EXPECT_FALSE(ppd::mark(file, QStringLiteral("B"), QStringLiteral("1")));
    EXPECT_EQ(ppd::markedChoice(file, QStringLiteral("A"))->text, QStringLiteral("One"));
    EXPECT_TRUE(ppd::mark(file, QStringLiteral("A"), QStringLiteral("2")));
    EXPECT_EQ(ppd::markedChoice(file, QStringLiteral("A"))->text, QStringLiteral("Two"));
    EXPECT_EQ(ppd::choices(file, QStringLiteral("A"))->size(), 2);
    EXPECT_EQ(ppd::choices(file, QStringLiteral("B")), std::nullopt);
    EXPECT_EQ(ppd::defaultChoice(nullptr, QStringLiteral("A")), std::nullopt);
}

} // namespace halvern
