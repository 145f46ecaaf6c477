// SPDX-License-Identifier: MIT
#include "tests/printer/print_job.h"

#include <cups/cups.h>

namespace halvern {
namespace {

/// One queue for all its tests, and a folder for documents.
class PrintingTest : public ServerTest {
protected:
    static void SetUpTestSuite()
    {
        ServerTest::SetUpTestSuite();
        addQueue("Tessarin");
    }

    QString document(const char* name) const { return documents.filePath(QLatin1String(name)); }

    int print(const QString& file, const char* format, const TextOptions& options) const
    {
        const int job = printFile("Tessarin", file, format, options);
        EXPECT_GT(job, 0) << cupsLastErrorString();
        EXPECT_TRUE(reaches(job, IPP_JSTATE_COMPLETED)) << jobState(job);
        return job;
    }

    QStringList pages(int job) const
    {
        return QDir(server->jobFile(job, QString())).entryList({q("page-*")}, QDir::Files, QDir::Name);
    }

    QTemporaryDir documents;
};

TEST_F(PrintingTest, EachKindOfDocumentBecomesWholeSheetsInTheRastersPixels)
{
    const struct {
        QString file;
        const char* format;
        TextOptions options;
        QSize size;
        int dotsPerMetre;
    } cases[] = {
        {makeTestPhoto(document("a.jpg")), "image/jpeg", {}, {1200, 1800}, 11811},
        {makeTestPhoto(document("b.png")), "image/png", {{"PageSize", "Postcard"}}, {1181, 1748}, 11811},
        {makePdf(document("c.pdf"), 1), "application/pdf", {{"Resolution", "360dpi"}}, {1440, 2160}, 14173},
        {makePdf(document("d.pdf"), 1),
         "application/pdf",
         {{"PaperFeed", "Roll"}, {"PageSize", "Roll1270x1270"}, {"Resolution", "610dpi"}},
         {3050, 3050},
         24016},
        {makeTestPhoto(document("e.jpg")), "image/jpeg", {{"ColorModel", "Gray"}}, {1200, 1800}, 11811},
    };

    for (const auto& one : cases) {
        const int job = print(one.file, one.format, one.options);
        EXPECT_EQ(pages(job), QStringList{q("page-1.png")});
        const QImage page(server->jobFile(job, q("page-1.png")));
        EXPECT_EQ(page.size(), one.size) << one.file.toStdString();
        EXPECT_EQ(page.dotsPerMeterX(), one.dotsPerMetre);
        EXPECT_EQ(page.dotsPerMeterY(), one.dotsPerMetre);
        EXPECT_LT(qRed(page.pixel(page.rect().center())), 200) << one.file.toStdString();
    }
}

TEST_F(PrintingTest, ThePrinterLeavesTheMarginsOfThePageWhite)
{
    const QString file = makePdf(document("full.pdf"), 1);
    const QImage framed(
        server->jobFile(print(file, "application/pdf", {{"PageSize", "4x6"}}), q("page-1.png")));
    const QImage full(
        server->jobFile(print(file, "application/pdf", {{"PageSize", "4x6.Fullbleed"}}), q("page-1.png")));
    // 8.5 points at the sides and above, 12 below: 35 and 50 pixels.
    for (const QPoint& inMargin : {QPoint(20, 900), QPoint(600, 20), QPoint(1180, 900), QPoint(600, 1760)}) {
        EXPECT_EQ(framed.pixelColor(inMargin), QColor(Qt::white)) << inMargin.x() << ' ' << inMargin.y();
        EXPECT_GT(full.pixelColor(inMargin).blue() - full.pixelColor(inMargin).red(), 100);
    }
    for (const QPoint& inside : {QPoint(60, 900), QPoint(600, 60), QPoint(1140, 900), QPoint(600, 1720)})
        EXPECT_GT(framed.pixelColor(inside).blue() - framed.pixelColor(inside).red(), 100);
}

TEST_F(PrintingTest, OptionsArriveByteForByteWhetherThePpdListsThemOrNot)
{
    std::string longLine;
    for (int i = 0; i < 60; ++i)
        longLine += "\xe2\x89\xa4\xc3\xa6";
    longLine += " ";
    const TextOptions sent = {
        {"SharpnessEnabled", "True"},
        {"SharpnessRadius", "7"},
        {"SharpnessIntensity", "1.24"},
        {"Brightness", "-37"},
        {"PaperName", "Gl\xc3\xa4nzend \xe6\x97\xa5\xe6\x9c\xac, A4"},
        {"Gamma", "abc"},
        {"DebugLog", "False"},
        {"NoSuchOption", "x=y"},
        {"Broken", "one\ntwo\n\tthree\r"},
        {"CVP2", "true"},
        {"CVP1", longLine},
    };
    const auto received =
        server->receivedOptions(print(makeTestPhoto(document("a.jpg")), "image/jpeg", sent)).value();
    for (const auto& [key, value] : sent)
        EXPECT_EQ(received.at(QString::fromStdString(key)).toStdString(), value) << key;
}

TEST_F(PrintingTest, TwoSidedPagesShareASheetByEitherOption)
{
    for (const TextOptions& option :
         {TextOptions{{"TwoSided", "ShortEdge"}}, TextOptions{{"Duplex", "DuplexNoTumble"}}}) {
        EXPECT_EQ(pages(print(makePdf(document("three.pdf"), 3), "application/pdf", option)),
                  (QStringList{q("page-1-back.png"), q("page-1.png"), q("page-2.png")}));
    }
}

TEST_F(PrintingTest, TheSheetsOfAJobsSecondDocumentFollowThoseOfTheFirst)
{
    const QByteArray pdf = readFile(makePdf(document("two.pdf"), 2));
    const int job = cupsCreateJob(CUPS_HTTP_DEFAULT, "Tessarin", "test", 0, nullptr);
    for (const int isLast : {0, 1}) {
        cupsStartDocument(CUPS_HTTP_DEFAULT, "Tessarin", job, "two", CUPS_FORMAT_PDF, isLast);
        cupsWriteRequestData(CUPS_HTTP_DEFAULT, pdf.constData(), size_t(pdf.size()));
        EXPECT_EQ(cupsFinishDocument(CUPS_HTTP_DEFAULT, "Tessarin"), IPP_STATUS_OK);
    }
    ASSERT_TRUE(reaches(job, IPP_JSTATE_COMPLETED));
    EXPECT_EQ(pages(job).size(), 4);
}

TEST_F(PrintingTest, EachCopyIsASheetWithItsBackprint)
{
    const TextOptions options = {{"copies", "2"}, {"EnableCVP1", "True"}, {"CVP1", "Summer 2026"}};
    const int job = print(makePdf(document("one.pdf"), 1), "application/pdf", options);
    EXPECT_EQ(pages(job),
              (QStringList{q("page-1-back.png"), q("page-1.png"), q("page-2-back.png"), q("page-2.png")}));
}

} // namespace
} // namespace halvern
