// SPDX-License-Identifier: MIT
#include "dialog/page/colour_transform.h"
#include "dialog/page/jpeg_data.h"
#include "dialog/page/page_layout.h"
#include "dialog/page/page_renderer.h"
#include "dialog/page/pdf_content.h"
#include "dialog/page/pdf_file.h"
#include "dialog/page/photo.h"
#include "dialog/page/photo_opening.h"
#include "dialog/photo/decoder_process.h"
#include "dialog/preview/preview_widget.h"
#include "tests/dialog/tiff_file.h"
#include "tests/support/test.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageWriter>
#include <QPainter>
#include <QtEndian>

#include <cstdio>
#include <cstdlib>

#include <jpeglib.h>

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

// A JPEG file with another segment right after its start.
QByteArray withSegment(const QByteArray& jpeg, int marker, const QByteArray& content)
{
    const qsizetype length = content.size() + 2;
    return jpeg.first(2) + '\xFF' + char(marker) + char(length >> 8) + char(length & 0xFF) + content +
           jpeg.mid(2);
}

// A flat picture in four inks, with Adobe's marker and a profile.
QByteArray inkJpeg(const QByteArray& inks, const QByteArray& profile)
{
    jpeg_compress_struct info;
    jpeg_error_mgr errors;
    info.err = jpeg_std_error(&errors);
    jpeg_create_compress(&info);
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&info, &bytes, &size);
    info.image_width = info.image_height = 64;
    info.input_components = 4;
    info.in_color_space = JCS_CMYK;
    jpeg_set_defaults(&info);
    jpeg_start_compress(&info, TRUE);
    jpeg_write_icc_profile(&info, reinterpret_cast<const JOCTET*>(profile.constData()),
                           unsigned(profile.size()));
    QByteArray line = inks.repeated(64);
    JSAMPROW row = reinterpret_cast<JSAMPROW>(line.data());
    while (info.next_scanline < 64)
        jpeg_write_scanlines(&info, &row, 1);
    jpeg_finish_compress(&info);
    const QByteArray file(reinterpret_cast<char*>(bytes), qsizetype(size));
    jpeg_destroy_compress(&info);
    std::free(bytes);
    return file;
}

} // namespace

class PageTest : public testing::Test {
protected:
    QString save(const QImage& image, const QString& name)
    {
        const QString path = folder.filePath(name);
        QImageWriter writer(path);
        writer.setQuality(95);
        EXPECT_TRUE(writer.write(image)) << qPrintable(writer.errorString());
        return path;
    }

    QString put(const char* name, const QByteArray& bytes)
    {
        return writeFile(folder.filePath(q(name)), bytes);
    }

    // Prints one photo on a sheet and reads the PDF back: its size in points, and its picture at 72 dpi.
    std::unique_ptr<Poppler::Document> printed(const Photo& photo, const PageLayout& layout)
    {
        pdf.clear();
        QBuffer buffer(&pdf);
        buffer.open(QIODevice::WriteOnly);
        EXPECT_EQ(writePdf(buffer, {{photo, layout}}, {300}, {[](double) { return true; }}), QString());
        return Poppler::Document::loadFromData(pdf);
    }

    DecoderLease decoders;
    QTemporaryDir folder;
    QByteArray pdf;
};

TEST_F(PageTest, LiesWhereTheTableSays)
{
    constexpr auto automatic = PageTurn::automatic;
    constexpr auto portrait = PageTurn::portrait;

    const struct {
        const char* name;
        QSizeF photo;
        Scaling scaling;
        PageTurn turn;
        QRectF wanted;
    } cases[] = {
        {"fit, upright photo", {200, 300}, Scaling::fit, automatic, {9, 13.5, 270, 405}},
        {"fit, wide photo turns the page", {300, 200}, Scaling::fit, automatic, {13.5, 9, 405, 270}},
        {"fit, wide photo on an upright page", {300, 200}, Scaling::fit, portrait, {9, 126, 270, 180}},
        {"fill cuts the long edges", {200, 300}, Scaling::fill, automatic, {6, 9, 276, 414}},
        {"actual size in the middle", {100, 100}, Scaling::actualSize, automatic, {94, 166, 100, 100}},
        {"beyond the page", {1000, 1000}, Scaling::actualSize, portrait, {-356, -284, 1000, 1000}},
        {"square photo stays upright", {300, 300}, Scaling::fit, automatic, {9, 81, 270, 270}},
    };

    for (const auto& c : cases) {
        const PageLayout layout = layOut({k4x6, k4x6Area, c.photo, c.scaling, c.turn});
        EXPECT_EQ(layout.turned, c.wanted.width() == 405) << c.name;
        expectNear(layout.photo, c.wanted, c.name);
        EXPECT_EQ(layout.isCut, !layout.imageable.contains(c.wanted)) << c.name;
        EXPECT_TRUE(layout.imageable.contains(layout.visible())) << c.name;
    }
}

TEST_F(PageTest, ASquarePhotoLeavesAWideSheetAsItIs)
{
    EXPECT_FALSE(layOut({k4x6.transposed(), {9, 9, 414, 270}, {300, 300}}).turned);
}

TEST_F(PageTest, PositionMovesTheCutAndUnevenMarginsTurnWithTheSheet)
{
    LayoutRequest request{k4x6,          {10, 20, 260, 380}, {200, 400},
                          Scaling::fill, PageTurn::portrait, {{0.5, 0.0}}};
    EXPECT_NEAR(layOut(request).photo.top(), 20.0, 0.01);
    request.placement.position = {0.5, 1.0};
    EXPECT_NEAR(layOut(request).photo.bottom(), 400.0, 0.01);
    request.turn = PageTurn::landscape;
    const PageLayout turned = layOut(request);
    // The sheet's left margin of 10 is the page's top one, its bottom margin of 32 the page's left one.
    expectNear(turned.imageable, {32, 10, 380, 260}, "turned");
    expectNear(turned.pageToSheet().mapRect(turned.imageable), {10, 20, 260, 380}, "back on the sheet");
    const PageLayout absurd =
        layOut({{0, 0}, {}, {0, 0}, Scaling::fill, PageTurn::automatic, {{7, -7}, 1e9, -5}});
    EXPECT_TRUE(qIsFinite(absurd.photo.left()) && qIsFinite(absurd.photo.width()));
}

TEST_F(PageTest, PdfHasThePapersSizeAndThePhotoWhereThePreviewShowsIt)
{
    const QSizeF papers[] = {k4x6, {283.46, 419.53}, {595.28, 841.89}};
    const char* files[] = {"p.jpg", "p.png", "p.tiff"};
    for (const QSizeF& paper : papers) {
        for (const char* file : files) {
            SCOPED_TRACE(file);
            const QString path = save(quarters({400, 300}), q(file));
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

TEST_F(PageTest, APhotoOnManySheetsIsInTheFileOnceForEachSize)
{
    const Photo photo = readPhotoFile(save(quarters({400, 300}), q("p.jpg"))).pages.at(0);
    const auto on = [&](const QSizeF& paper) {
        return SheetToPrint(photo, layOut({paper, QRectF({}, paper), photo.ownSize}));
    };
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    ASSERT_EQ(
        writePdf(file, {on(k4x6), on(k4x6), on(k4x6 / 2.0), on(k4x6)}, {300}, {[](double) { return true; }}),
        QString());
    EXPECT_EQ(file.data().count("/Subtype /Image"), 2);
    const auto document = Poppler::Document::loadFromData(file.data());
    ASSERT_TRUE(document && document->numPages() == 4);
    const std::unique_ptr<Poppler::Page> last = document->page(3);
    EXPECT_EQ(at(last->renderToImage(72, 72), 20, 20), at(document->page(0)->renderToImage(72, 72), 20, 20));
}

TEST_F(PageTest, JpegDataGoIntoTheJobUntouchedInEveryOrientation)
{
    struct Case {
        char orientation;
        QColor topLeft, topRight, bottomLeft;
    };

    const QColor red = Qt::red;
    const QColor green = Qt::green;
    const QColor blue = Qt::blue;
    const QColor yellow = Qt::yellow;
    const Case cases[] = {
        {1, red, green, blue}, {2, green, red, yellow}, {3, yellow, blue, green}, {4, blue, yellow, red},
        {5, red, blue, green}, {6, blue, red, yellow},  {7, yellow, green, blue}, {8, green, yellow, red},
    };
    const QByteArray stored = readFile(save(quarters({320, 200}), q("stored.jpg")));
    for (const auto& c : cases) {
        SCOPED_TRACE(int(c.orientation));
        // One Exif entry, the orientation, in an APP1 segment of its own.
        const QByteArray entry =
            QByteArray("\x12\x01\x03\0\x01\0\0\0", 8) + c.orientation + QByteArray(3, '\0');
        const QByteArray exif = QByteArray("Exif\0\0II*\0\x08\0\0\0\x01\0", 16) + entry + QByteArray(4, '\0');
        const QByteArray file = withSegment(stored, 0xE1, exif);
        const PhotoFile read = readPhotoFile(put("turned.jpg", file));
        ASSERT_EQ(read.pages.size(), 1u);
        const Photo& photo = read.pages.front();
        EXPECT_EQ(photo.pixels, c.orientation > 4 ? QSize(200, 320) : QSize(320, 200));
        const PageLayout layout = layOut({k4x6, k4x6Area, photo.ownSize, Scaling::fit, PageTurn::portrait});
        const QImage sheet = printed(photo, layout)->page(0)->renderToImage(72, 72);
        EXPECT_TRUE(pdf.contains(file)) << "not compressed a second time";
        const std::pair<QPointF, QColor> spots[] = {
            {{0.25, 0.25}, c.topLeft}, {{0.75, 0.25}, c.topRight}, {{0.25, 0.75}, c.bottomLeft}};
        for (const auto& [spot, wanted] : spots) {
            EXPECT_EQ(at(photo.preview, photo.pixels.width() * spot.x(), photo.pixels.height() * spot.y()),
                      wanted);
            EXPECT_EQ(at(sheet, layout.photo.left() + layout.photo.width() * spot.x(),
                         layout.photo.top() + layout.photo.height() * spot.y()),
                      wanted);
        }
    }
}

TEST_F(PageTest, JpegDataThatPdfReadersWouldReadOtherwiseAreDecoded)
{
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(QColor(254, 0, 0)); // stored as 76, 85, 255
    const QByteArray jfif = readFile(save(image, q("red.jpg")));
    const QByteArray bare = jfif.first(2) + jfif.mid(20);
    const QByteArray adobe("Adobe\0\x64\0\0\0\0\0", 12);
    const Photo rgb = readPhotoFile(put("rgb.jpg", withSegment(bare, 0xEE, adobe))).pages.at(0);
    EXPECT_FALSE(untouchableJpeg(rgb));
    EXPECT_EQ(at(rgb.preview, 32, 32), QColor(Qt::blue)) << "the numbers are red, green and blue";
    const Photo plain =
        readPhotoFile(put("ycc.jpg", withSegment(bare, 0xEE, adobe.chopped(1) + '\x01'))).pages.at(0);
    EXPECT_TRUE(untouchableJpeg(plain));
}

TEST_F(PageTest, AResolutionIsBelievedOnlyIfSomebodyMeantIt)
{
    for (const auto& [written, wanted] : {std::pair(72, 300), std::pair(96, 300), std::pair(240, 240)}) {
        QImage image = quarters({480, 240});
        image.setDotsPerMeterX(qRound(written / 0.0254));
        image.setDotsPerMeterY(qRound(written / 0.0254));
        for (const char* name : {"size.jpg", "size.png"}) {
            const Photo photo = readPhotoFile(save(image, q(name))).pages.at(0);
            EXPECT_NEAR(photo.ownSize.width(), 480.0 * 72.0 / wanted, 0.2) << name << written;
        }
    }
}

TEST_F(PageTest, InksAndColoursComeThroughTheFilesOwnProfile)
{
    // Ghostscript's package has a table profile for four inks. What is expected was computed by transicc.
    const QString profile = q("/usr/share/color/icc/ghostscript/default_cmyk.icc");
    ASSERT_TRUE(QFile::exists(profile)) << "install libgs-common";
    const QByteArray inks("\x58\xFF\x00\xFF", 4); // 65 % cyan, 100 % yellow, as Adobe's programs store them
    const Photo photo = readPhotoFile(put("inks.jpg", inkJpeg(inks, readFile(profile)))).pages.at(0);
    EXPECT_FALSE(untouchableJpeg(photo));
    const PageLayout layout = layOut({k4x6, k4x6Area, photo.ownSize});
    const QImage sheet = printed(photo, layout)->page(0)->renderToImage(72, 72);
    for (const QColor& color : {photo.preview.pixelColor(20, 20), sheet.pixelColor(144, 216)}) {
        EXPECT_NEAR(color.red(), 99, 2);
        EXPECT_NEAR(color.green(), 188, 2);
        EXPECT_NEAR(color.blue(), 74, 2);
    }
}

TEST_F(PageTest, APartThatIsMissingIsTold)
{
    const QByteArray jpeg = readFile(save(quarters({400, 300}), q("good.jpg")));
    const QByteArray tiff = tiffOf({0, 1, 0});
    const QByteArray pages = tiffOf({0, 0, 0});
    printed(readPhotoFile(folder.filePath(q("good.jpg"))).pages.at(0), layOut({k4x6, k4x6Area, k4x6}));

    const struct {
        const char* name;
        QByteArray bytes;
        bool isToldOf;
    } cases[] = {
        {"cut.jpg", jpeg.first(jpeg.size() * 3 / 4), true},
        {"hole.jpg", QByteArray(jpeg).replace(jpeg.size() / 2, 600, QByteArray(600, '\0')), true},
        {"lost_block.jpg", QByteArray(jpeg).remove(jpeg.size() / 2, 64), true},
        {"lost_pages.tif", pages.chopped(3732), true},
        {"left_over.jpg", QByteArray(jpeg).insert(jpeg.size() - 2, QByteArray(20, '\x12')), true},
        {"filled_up.jpg", QByteArray(jpeg).insert(jpeg.size() - 2, QByteArray(9, '\0')), false},
        {"no_end_marker.jpg", jpeg.chopped(2), false},
        {"padded.jpg", jpeg + QByteArray(5000, '\0'), false},
        {"cut.tif", tiff.chopped(500), true},
        {"cut.pdf", pdf.chopped(8), true},
        {"hole.pdf", QByteArray(pdf).replace(pdf.size() / 2, 600, QByteArray(600, '\0')), true},
        {"no_divisors.pdf", QByteArray(pdf).replace("\xFF\xDB", "\xFF\xEB"), true},
    };

    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const PhotoFile read = openPhotoFile(put(c.name, c.bytes));
        ASSERT_FALSE(read.pages.empty()) << qPrintable(read.problem);
        EXPECT_EQ(read.problem.contains(q("part of the picture is missing")), c.isToldOf);
        EXPECT_EQ(untouchableJpeg(read.pages.back()).has_value(),
                  !c.isToldOf && QByteArray(c.name).endsWith("jpg"))
            << "printed as it was shown";
    }
}

TEST_F(PageTest, TiffFilesGiveAPageForEachPhotoAndNoneForAThumbnail)
{
    const PhotoFile read = readPhotoFile(put("three.tif", tiffOf({0, 1, 0})));
    ASSERT_EQ(read.pages.size(), 2u) << qPrintable(read.problem);
    EXPECT_EQ(read.problem, QString());
    EXPECT_EQ(read.pages[1].pageNumber, 2);
    QString problem;
    const QImage second = readPixels(read.pages[1], 300, &problem);
    EXPECT_EQ(second.pixelColor(5, 5).red(), 120) << "the third directory's gray";
}

TEST_F(PageTest, ColoursOfATaggedPhotoAreConverted)
{
    QImage image(40, 40, QImage::Format_RGB32);
    image.fill(QColor(200, 100, 50));
    image.setColorSpace(QColorSpace(QColorSpace::AdobeRgb));
    for (const char* name : {"adobe.jpg", "adobe.png"}) {
        const PhotoFile read = readPhotoFile(save(image, q(name)));
        ASSERT_EQ(read.pages.size(), 1u);
        const std::optional<JpegInfo> jpeg = untouchableJpeg(read.pages.front());
        EXPECT_FALSE(jpeg && ColourTransform(jpeg->asStored(), {}).changesNothing())
            << "its numbers mean other colours";
        EXPECT_GT(read.pages.front().preview.pixelColor(20, 20).red(), 215);
    }
}

TEST_F(PageTest, TransparentPicturesLieOnWhitePaper)
{
    QImage image(60, 60, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    const PhotoFile read = readPhotoFile(save(image, q("glass.png")));
    ASSERT_EQ(read.pages.size(), 1u);
    const PageLayout layout = layOut({k4x6, k4x6Area, read.pages.front().ownSize});
    EXPECT_EQ(at(printed(read.pages.front(), layout)->page(0)->renderToImage(72, 72), 144, 216),
              QColor(Qt::white));
}

TEST_F(PageTest, PdfFilesGiveAPageForEachOfTheirs)
{
    const PhotoFile photo = readPhotoFile(save(quarters({400, 300}), q("p.png")));
    const PageLayout layout = layOut({k4x6, k4x6Area, photo.pages.front().ownSize});
    QBuffer buffer(&pdf);
    buffer.open(QIODevice::WriteOnly);
    ASSERT_EQ(writePdf(buffer, {{photo.pages.front(), layout}, {photo.pages.front(), layout}}, {300},
                       {[](double) { return true; }}),
              QString());
    const PhotoFile read = readPhotoFile(put("two.pdf", pdf));
    ASSERT_EQ(read.pages.size(), 2u) << qPrintable(read.problem);
    EXPECT_EQ(read.pages[1].ownSize, k4x6);
    const PageLayout again = layOut({k4x6, {{0, 0}, k4x6}, read.pages[1].ownSize});
    const QImage sheet = printed(read.pages[1], again)->page(0)->renderToImage(72, 72);
    EXPECT_EQ(at(sheet, 50, 380), QColor(Qt::red)) << "the page's left end is the sheet's bottom";
}

TEST_F(PageTest, AnEnormousFileNamesItsPlacesInFull)
{
    // Swallows what would fill a disk.
    class Swallowed : public QIODevice {
    public:
        QByteArray end;

    protected:
        qint64 readData(char*, qint64) override { return -1; }

        qint64 writeData(const char* bytes, qint64 count) override
        {
            end = (end + QByteArray(bytes, std::min<qint64>(count, 1000))).right(1000);
            return count;
        }
    } device;

    ASSERT_TRUE(device.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    PdfFile file(device);
    file.beginPicture({{100'000, 34'000}, 3, "FlateDecode"});
    const QByteArray piece(64 * 1024 * 1024, '\0');
    for (int i = 0; i < 150; ++i)
        ASSERT_TRUE(file.addToPicture(piece.constData(), piece.size()));
    file.addPage({100, 100}, PdfContent({100, 100}), {file.endPicture()});
    ASSERT_TRUE(file.finish());
    const qsizetype at = device.end.indexOf("startxref\n") + 10;
    const qint64 table = device.end.mid(at, device.end.indexOf('\n', at) - at).toLongLong();
    EXPECT_GT(table, 9'999'999'999);
    const QByteArray entries =
        device.end.left(device.end.indexOf("\nendstream", device.end.indexOf("/XRef")));
    EXPECT_EQ(qFromBigEndian<qint64>(entries.constData() + entries.size() - 8), table) << "its own place";
}

TEST_F(PageTest, FilesThatCannotBePrintedSayWhyAndWhatToDo)
{
    const QByteArray half = readFile(save(quarters({400, 300}), q("good.jpg"))).first(60);

    const struct {
        QString path;
        const char* words;
    } cases[] = {
        {folder.filePath(q("none.jpg")), "no file"},
        {folder.path(), "folder"},
        {put("empty.jpg", {}), "empty"},
        {put("text.jpg", "hello, I am a text\n"), "not a picture that can be printed"},
        {put("half.jpg", half), "damaged"},
        {put("broken.pdf", "%PDF-1.5\nnothing"), "damaged"},
    };

    for (const auto& c : cases) {
        const PhotoFile read = readPhotoFile(c.path);
        EXPECT_TRUE(read.pages.empty()) << c.words;
        EXPECT_TRUE(read.problem.contains(q(c.words))) << qPrintable(read.problem);
    }
}

TEST_F(PageTest, AFileThatVanishesOrIsReplacedBeforePrintingIsNamed)
{
    const QString path = save(quarters({40, 30}), q("gone.jpg"));
    const Photo photo = openPhotoFile(path).pages.front();
    const PageLayout layout = layOut({k4x6, k4x6Area, photo.ownSize});
    const auto problem = [&] {
        QBuffer buffer(&pdf);
        buffer.open(QIODevice::WriteOnly);
        return writePdf(buffer, {{photo, layout}}, {300}, {[](double) { return true; }});
    };
    save(quarters({30, 40}), q("gone.jpg"));
    EXPECT_TRUE(problem().contains(q("has changed"))) << qPrintable(problem());
    QFile::remove(path);
    EXPECT_TRUE(problem().contains(q("gone.jpg"))) << qPrintable(problem());
}

TEST_F(PageTest, AJpegThatNoDecoderReadsIsNotTakenForWhole)
{
    const QByteArray good = readFile(save(quarters({64, 48}), q("good.jpg")));

    const struct {
        const char* name;
        QByteArray before;
        QByteArray after;
    } cases[] = {
        {"no table of divisors.jpg", "\xFF\xDB", "\xFF\xEB"},
        {"another table's number.jpg", QByteArray("\xFF\xDB\0\x43\0", 5), QByteArray("\xFF\xDB\0\x43\2", 5)},
        {"another table wanted.jpg", QByteArray("\x01\x22\0", 3), "\x01\x22\x03"},
        {"a segment that nobody knows.jpg", "\xFF\xE0", "\xFF\xF0"},
    };

    for (const auto& c : cases) {
        QByteArray bytes = good;
        ASSERT_NE(good.indexOf(c.before), -1) << c.name;
        bytes.replace(good.indexOf(c.before), c.before.size(), c.after);
        const PhotoFile read = openPhotoFile(put(c.name, bytes));
        EXPECT_TRUE(read.pages.empty() && read.problem.contains(q(c.name))) << c.name;
    }
}

} // namespace halvern
