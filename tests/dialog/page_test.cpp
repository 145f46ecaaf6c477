#include "dialog/page/jpeg_data.h"
#include "dialog/page/page_layout.h"
#include "dialog/page/page_renderer.h"
#include "dialog/page/photo.h"
#include "dialog/preview/preview_widget.h"
#include "tests/support/files.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageWriter>
#include <QPainter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <poppler-qt6.h>

namespace halvern {

namespace {

const QRectF k4x6Area(9, 9, 270, 414);
const QSizeF k4x6(288, 432);

void expectNear(const QRectF& actual, const QRectF& wanted, const char* what)
{
    EXPECT_NEAR(actual.left(), wanted.left(), 0.01) << what;
    EXPECT_NEAR(actual.top(), wanted.top(), 0.01) << what;
    EXPECT_NEAR(actual.width(), wanted.width(), 0.01) << what;
    EXPECT_NEAR(actual.height(), wanted.height(), 0.01) << what;
}

// Red, green, blue, white quarters: top left, top right, bottom left, bottom right.
QImage quarters(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    const int w = size.width() / 2;
    const int h = size.height() / 2;
    painter.fillRect(0, 0, w, h, Qt::red);
    painter.fillRect(w, 0, w, h, Qt::green);
    painter.fillRect(0, h, w, h, Qt::blue);
    painter.fillRect(w, h, w, h, Qt::yellow);
    return image;
}

QColor at(const QImage& image, double x, double y)
{
    const QColor c = image.pixelColor(int(x), int(y));
    // The nearest plain colour, so that compression does not matter.
    return {c.red() > 127 ? 255 : 0, c.green() > 127 ? 255 : 0, c.blue() > 127 ? 255 : 0};
}

} // namespace

class PageTest : public testing::Test {
protected:
    QString save(const QImage& image, const QString& name,
                 QImageIOHandler::Transformations turn = QImageIOHandler::TransformationNone)
    {
        const QString path = folder.filePath(name);
        QImageWriter writer(path);
        writer.setTransformation(turn);
        writer.setQuality(95);
        EXPECT_TRUE(writer.write(image)) << qPrintable(writer.errorString());
        return path;
    }

    QString put(const char* name, const QByteArray& bytes)
    {
        return writeFile(folder.filePath(QString::fromLatin1(name)), bytes);
    }

    // Prints one photo on a sheet and reads the PDF back: its size in points, and its picture at 72 dpi.
    std::unique_ptr<Poppler::Document> printed(const Photo& photo, const PageLayout& layout)
    {
        pdf.clear();
        QBuffer buffer(&pdf);
        buffer.open(QIODevice::WriteOnly);
        EXPECT_EQ(writePdf(buffer, {{photo, layout}}, 300, [](double) { return true; }), QString());
        return Poppler::Document::loadFromData(pdf);
    }

    QTemporaryDir folder;
    QByteArray pdf;
};

TEST_F(PageTest, LiesWhereTheTableSays)
{
    constexpr auto automatic = PageTurn::automatic;
    constexpr auto portrait = PageTurn::portrait;

    struct Case {
        const char* name;
        QSizeF photo;
        Scaling scaling;
        PageTurn turn;
        QRectF wanted;
    };

    const Case cases[] = {
        {"fit, upright photo", {200, 300}, Scaling::fit, automatic, {9, 13.5, 270, 405}},
        {"fit, wide photo turns the page", {300, 200}, Scaling::fit, automatic, {13.5, 9, 405, 270}},
        {"fit, wide photo on an upright page", {300, 200}, Scaling::fit, portrait, {9, 126, 270, 180}},
        {"fill cuts the long edges", {200, 300}, Scaling::fill, automatic, {6, 9, 276, 414}},
        {"actual size in the middle", {100, 100}, Scaling::actualSize, automatic, {94, 166, 100, 100}},
        {"beyond the page", {1000, 1000}, Scaling::actualSize, portrait, {-356, -284, 1000, 1000}},
        {"square photo stays upright", {300, 300}, Scaling::fit, automatic, {9, 81, 270, 270}},
    };
    for (const Case& c : cases) {
        const PageLayout layout = layOut({k4x6, k4x6Area, c.photo, c.scaling, c.turn, {0.5, 0.5}});
        EXPECT_EQ(layout.turned, c.wanted.width() == 405) << c.name;
        expectNear(layout.photo, c.wanted, c.name);
        EXPECT_EQ(layout.isCut, !layout.imageable.contains(c.wanted)) << c.name;
        EXPECT_TRUE(layout.imageable.contains(layout.visible())) << c.name;
    }
}

TEST_F(PageTest, PositionMovesTheCutAndUnevenMarginsTurnWithTheSheet)
{
    LayoutRequest request{k4x6,          {10, 20, 260, 380}, {200, 400},
                          Scaling::fill, PageTurn::portrait, {0.5, 0.0}};
    EXPECT_NEAR(layOut(request).photo.top(), 20.0, 0.01);
    request.position = {0.5, 1.0};
    EXPECT_NEAR(layOut(request).photo.bottom(), 400.0, 0.01);
    request.turn = PageTurn::landscape;
    const PageLayout turned = layOut(request);
    // The sheet's left margin of 10 is the page's top one, its bottom margin of 32 the page's left one.
    expectNear(turned.imageable, {32, 10, 380, 260}, "turned");
    expectNear(turned.pageToSheet().mapRect(turned.imageable), {10, 20, 260, 380}, "back on the sheet");
    const PageLayout absurd = layOut({{0, 0}, {}, {0, 0}, Scaling::fill, PageTurn::automatic, {7, -7}});
    EXPECT_TRUE(qIsFinite(absurd.photo.left()) && qIsFinite(absurd.photo.width()));
}

TEST_F(PageTest, PdfHasThePapersSizeAndThePhotoWhereThePreviewShowsIt)
{
    const QSizeF papers[] = {k4x6, {283.46, 419.53}, {595.28, 841.89}};
    const char* files[] = {"p.jpg", "p.png", "p.tiff"};
    for (const QSizeF& paper : papers) {
        for (const char* file : files) {
            SCOPED_TRACE(file);
            const QString path = save(quarters({400, 300}), QString::fromLatin1(file));
            const PhotoFile read = readPhotoFile(path);
            ASSERT_EQ(read.pages.size(), 1u) << qPrintable(read.problem);
            const Photo& photo = read.pages.front();
            const PageLayout layout = layOut({paper, QRectF({9, 9}, paper - QSizeF(18, 30)), photo.ownSize});
            ASSERT_TRUE(layout.turned);
            const auto document = printed(photo, layout);
            ASSERT_TRUE(document && document->numPages() == 1);
            const std::unique_ptr<Poppler::Page> page = document->page(0);
            EXPECT_NEAR(page->pageSizeF().width(), paper.width(), 0.01);
            EXPECT_NEAR(page->pageSizeF().height(), paper.height(), 0.01);
            const QImage sheet = page->renderToImage(72, 72);
            QImage preview(layout.page.toSize(), QImage::Format_RGB32);
            QPainter painter(&preview);
            paintPage(painter, layout, photo.preview);
            painter.end();
            for (const QPointF& spot :
                 {QPointF(0.2, 0.3), QPointF(0.8, 0.3), QPointF(0.2, 0.7), QPointF(0.8, 0.7)}) {
                const QPointF onPage(layout.page.width() * spot.x(), layout.page.height() * spot.y());
                const QPointF onSheet = layout.pageToSheet().map(onPage);
                EXPECT_EQ(at(sheet, onSheet.x(), onSheet.y()), at(preview, onPage.x(), onPage.y()))
                    << spot.x() << ' ' << spot.y();
            }
            EXPECT_EQ(at(preview, layout.page.width() * 0.2, layout.page.height() * 0.3), QColor(Qt::red));
            EXPECT_EQ(at(sheet, 3, 3), QColor(Qt::white)) << "nothing in the margin";
        }
    }
}

TEST_F(PageTest, JpegDataGoIntoTheJobUntouchedInEveryOrientation)
{
    for (int turn = 0; turn < 8; ++turn) {
        SCOPED_TRACE(turn);
        const auto transformation = QImageIOHandler::Transformations(turn);
        const QString path = save(quarters({320, 200}), QStringLiteral("t%1.jpg").arg(turn), transformation);
        const PhotoFile read = readPhotoFile(path);
        ASSERT_EQ(read.pages.size(), 1u);
        const Photo& photo = read.pages.front();
        EXPECT_EQ(photo.pixels, turn & 4 ? QSize(200, 320) : QSize(320, 200));
        ASSERT_TRUE(readJpegData(photo));
        const PageLayout layout = layOut({k4x6, k4x6Area, photo.ownSize, Scaling::fit, PageTurn::portrait});
        const QImage sheet = printed(photo, layout)->page(0)->renderToImage(72, 72);
        EXPECT_TRUE(pdf.contains(readFile(path))) << "not compressed a second time";
        const QImage& upright = photo.preview;
        for (const QPointF& spot : {QPointF(0.25, 0.25), QPointF(0.75, 0.25), QPointF(0.25, 0.75)}) {
            const QPointF p(layout.photo.left() + layout.photo.width() * spot.x(),
                            layout.photo.top() + layout.photo.height() * spot.y());
            EXPECT_EQ(at(sheet, p.x(), p.y()),
                      at(upright, upright.width() * spot.x(), upright.height() * spot.y()));
        }
    }
}

TEST_F(PageTest, ColoursOfATaggedPhotoAreConverted)
{
    QImage image(40, 40, QImage::Format_RGB32);
    image.fill(QColor(200, 100, 50));
    image.setColorSpace(QColorSpace(QColorSpace::AdobeRgb));
    for (const char* name : {"adobe.jpg", "adobe.png"}) {
        const PhotoFile read = readPhotoFile(save(image, QString::fromLatin1(name)));
        ASSERT_EQ(read.pages.size(), 1u);
        EXPECT_FALSE(readJpegData(read.pages.front())) << "its numbers mean other colours";
        EXPECT_GT(read.pages.front().preview.pixelColor(20, 20).red(), 215);
    }
}

TEST_F(PageTest, TransparentPicturesLieOnWhitePaper)
{
    QImage image(60, 60, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    const PhotoFile read = readPhotoFile(save(image, QStringLiteral("glass.png")));
    ASSERT_EQ(read.pages.size(), 1u);
    const PageLayout layout = layOut({k4x6, k4x6Area, read.pages.front().ownSize});
    EXPECT_EQ(at(printed(read.pages.front(), layout)->page(0)->renderToImage(72, 72), 144, 216),
              QColor(Qt::white));
}

TEST_F(PageTest, PdfFilesGiveAPageForEachOfTheirs)
{
    const PhotoFile photo = readPhotoFile(save(quarters({400, 300}), QStringLiteral("p.png")));
    const PageLayout layout = layOut({k4x6, k4x6Area, photo.pages.front().ownSize});
    QBuffer buffer(&pdf);
    buffer.open(QIODevice::WriteOnly);
    ASSERT_EQ(writePdf(buffer, {{photo.pages.front(), layout}, {photo.pages.front(), layout}}, 300,
                       [](double) { return true; }),
              QString());
    const PhotoFile read = readPhotoFile(put("two.pdf", pdf));
    ASSERT_EQ(read.pages.size(), 2u) << qPrintable(read.problem);
    EXPECT_EQ(read.pages[1].ownSize, k4x6);
    const PageLayout again = layOut({k4x6, {{0, 0}, k4x6}, read.pages[1].ownSize});
    const QImage sheet = printed(read.pages[1], again)->page(0)->renderToImage(72, 72);
    EXPECT_EQ(at(sheet, 50, 380), QColor(Qt::red)) << "the page's left end is the sheet's bottom";
}

TEST_F(PageTest, FilesThatCannotBePrintedSayWhyAndWhatToDo)
{
    const QByteArray half = readFile(save(quarters({400, 300}), QStringLiteral("good.jpg"))).first(60);

    struct Case {
        QString path;
        const char* words;
    };

    const Case cases[] = {
        {folder.filePath(QStringLiteral("none.jpg")), "no file"},
        {folder.path(), "folder"},
        {put("empty.jpg", {}), "empty"},
        {put("text.jpg", "hello, I am a text\n"), "JPEG, PNG, TIFF or PDF"},
        {put("half.jpg", half), "damaged"},
        {put("broken.pdf", "%PDF-1.5\nnothing"), "damaged"},
    };
    for (const Case& c : cases) {
        const PhotoFile read = readPhotoFile(c.path);
        EXPECT_TRUE(read.pages.empty()) << c.words;
        EXPECT_TRUE(read.problem.contains(QString::fromLatin1(c.words))) << qPrintable(read.problem);
    }
}

TEST_F(PageTest, AFileThatVanishesBeforePrintingIsNamed)
{
    const QString path = save(quarters({40, 30}), QStringLiteral("gone.png"));
    const Photo photo = readPhotoFile(path).pages.front();
    QFile::remove(path);
    QBuffer buffer(&pdf);
    buffer.open(QIODevice::WriteOnly);
    const PageLayout layout = layOut({k4x6, k4x6Area, photo.ownSize});
    const QString problem = writePdf(buffer, {{photo, layout}}, 300, [](double) { return true; });
    EXPECT_TRUE(problem.contains(QStringLiteral("gone.png"))) << qPrintable(problem);
}

} // namespace halvern
