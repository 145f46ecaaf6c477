// SPDX-License-Identifier: MIT
// The preview: the printer's adjustments on the screen, the whole page and 1:1.
#include "dialog/preview/crop_editor.h"
#include "dialog/preview/preview_widget.h"
#include "dialog/preview/screen_photo.h"
#include "dialog/preview/sharp_photo_reader.h"
#include "dialog/preview/sheet_photos.h"
#include "dialog/preview/small_copies.h"
#include "tests/support/test.h"

namespace halvern {
namespace {

// Every pixel tells where it stands, and its neighbours differ.
QImage telling(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb(40 + x % 150, 40 + y % 150, (x * 7 + y * 13) % 90 + 60));
    }
    return image;
}

Look sharpenedLook()
{
    Look look;
    look.sharpening = {3.0, 2.0};
    return look;
}

Look brightLook()
{
    Look look;
    look.colors.brightness = 40.0;
    return look;
}

} // namespace

class PreviewTest : public testing::Test {
protected:
    PreviewTest()
    {
        preview.resize(400, 400);
        preview.show();
    }

    // A borderless page whose photo has a pixel for each of its 300 dots an inch.
    PreviewPage page(const Look& look = {})
    {
        const QString path = folder.filePath(q("photo.png"));
        picture.save(path);
        PreviewPage shown;
        shown.photo = readPhotoFile(path).pages.front();
        const QSizeF paper = QSizeF(picture.size()) * (72.0 / 300.0);
        shown.layout = layOut({paper, QRectF(QPointF(), paper), paper});
        shown.look = look;
        return shown;
    }

    QImage grabbed() { return preview.grab().toImage().convertToFormat(QImage::Format_RGB32); }

    void zoom()
    {
        preview.setZoomed(true);
        ASSERT_TRUE(waitUntil([&] { return !preview.isReadingDetail(); }));
    }

    QPoint middle() { return preview.sheetRect().center().toPoint(); }

    QTemporaryDir folder;
    QImage picture = telling({1800, 1200});
    PreviewWidget preview{nullptr};
};

TEST(ScreenPhoto, AWindowLooksAsInTheWholeSharpenedPhoto)
{
    const QImage detail = telling({90, 70});
    Look look = sharpenedLook();
    look.colors.contrast = 20.0;
    const QImage whole = adjust::sharpened(adjust::adjusted(detail, look.colors), look.sharpening);
    ScreenPhoto photo;
    photo.setDetail(detail);
    photo.setLook(look);
    for (const QRect& window : {QRect(30, 25, 20, 15), QRect(0, 0, 12, 12), QRect(80, 60, 10, 10)})
        EXPECT_EQ(photo.part(detail.size(), window), whole.copy(window)) << window.x();
    photo.setLook({});
    EXPECT_EQ(photo.part(detail.size(), QRect(3, 4, 5, 6)), detail.copy(3, 4, 5, 6));
}

TEST_F(PreviewTest, ShowsTheAdjustmentsOnTheWholePageAndSaysThatTheyAreApproximate)
{
    preview.showPage(page());
    const QImage plain = grabbed();
    EXPECT_EQ(preview.captions().size(), 1);
    preview.showPage(page(brightLook()));
    EXPECT_GT(qGreen(grabbed().pixel(middle())), qGreen(plain.pixel(middle())) + 20);
    ASSERT_EQ(preview.captions().size(), 2);
    EXPECT_TRUE(preview.captions().back().contains(q("approximated")));
    EXPECT_TRUE(preview.accessibleDescription().contains(preview.captions().back()));
    preview.showPage(page(sharpenedLook()));
    EXPECT_EQ(grabbed().pixel(middle()), plain.pixel(middle())) << "sharpening shows at 1:1 only";
    preview.showPage(page());
    EXPECT_EQ(grabbed(), plain);
}

TEST_F(PreviewTest, TheCropFrameIsEnlargedDraggedAndTurned)
{
    PreviewPage shown = page();
    preview.showPage(shown);
    QObject::connect(
        &preview, &PreviewWidget::placementChosen, &preview, [&](const PhotoPlacement& placement) {
            shown.photo.placement = placement;
            shown.layout = layOut({shown.layout.page, shown.layout.imageable, shown.photo.ownSize,
                                   Scaling::fill, PageTurn::portrait, placement});
            preview.showPage(shown);
        });
    QTest::keyClick(&preview, Qt::Key_C);
    auto* editor = preview.findChild<CropEditor*>();
    ASSERT_TRUE(editor && editor->isVisible());
    const QRectF whole = editor->frameRect();
    for (int i = 0; i < 9; ++i)
        QTest::keyClick(editor, Qt::Key_Plus);
    EXPECT_NEAR(shown.photo.placement.zoom, 2.0, 0.05);
    EXPECT_NEAR(editor->frameRect().width(), whole.width() / 2.0, 5.0);
    EXPECT_NEAR(editor->frameRect().center().x(), whole.center().x(), 2.0);
    const QPoint from = editor->frameRect().center().toPoint();
    QTest::mousePress(editor, Qt::LeftButton, {}, from);
    QTest::mouseMove(editor, from + QPoint(20, -10));
    QTest::mouseRelease(editor, Qt::LeftButton, {}, from + QPoint(20, -10));
    EXPECT_NEAR(editor->frameRect().center().x(), from.x() + 20, 2.0);
    EXPECT_NEAR(editor->frameRect().center().y(), from.y() - 10, 2.0);
    QTest::keyClick(editor, Qt::Key_R);
    EXPECT_EQ(shown.photo.placement.quarterTurns, 1);
    QTest::keyClick(editor, Qt::Key_0);
    EXPECT_EQ(shown.photo.placement.zoom, 1.0);
    QTest::keyClick(editor, Qt::Key_Escape);
    EXPECT_FALSE(editor->isVisible());
}

TEST_F(PreviewTest, AtOneToOneAScreenPixelIsADot)
{
    preview.showPage(page());
    zoom();
    const QImage shown = grabbed();
    // The middle of the photo comes to the middle of the view; the captions take some of its height.
    bool found = false;
    for (int y = 400; y < 500 && !found; ++y)
        found = picture.copy(700, y, 300, 300) == shown.copy(0, 0, 300, 300);
    EXPECT_TRUE(found);
    preview.showPage(page(sharpenedLook()));
    zoom();
    EXPECT_NE(grabbed().copy(0, 0, 300, 300), shown.copy(0, 0, 300, 300));

    PreviewPage turned = page();
    const QSizeF paper = turned.layout.page.transposed();
    turned.photo.placement.quarterTurns = 1;
    turned.layout = layOut({paper, QRectF(QPointF(), paper), turned.photo.ownSize, Scaling::fit,
                            PageTurn::portrait, turned.photo.placement});
    preview.showPage(turned);
    zoom();
    const QImage upright = picture.transformed(QTransform().rotate(90.0));
    found = false;
    for (int y = 700; y < 800 && !found; ++y)
        found = upright.copy(400, y, 300, 300) == grabbed().copy(0, 0, 300, 300);
    EXPECT_TRUE(found);
}

TEST_F(PreviewTest, DraggingAndKeysMoveThePageUnderTheView)
{
    preview.showPage(page());
    zoom();
    const QImage before = grabbed();
    QTest::keyClick(&preview, Qt::Key_Right);
    EXPECT_EQ(grabbed().copy(0, 0, 200, 200), before.copy(48, 0, 200, 200));
    QTest::keyClick(&preview, Qt::Key_Left);
    QTest::mousePress(&preview, Qt::LeftButton, {}, QPoint(100, 100));
    QTest::mouseMove(&preview, QPoint(130, 120));
    QTest::mouseRelease(&preview, Qt::LeftButton, {}, QPoint(130, 120));
    EXPECT_EQ(grabbed().copy(30, 20, 200, 200), before.copy(0, 0, 200, 200));
    for (int i = 0; i < 100; ++i)
        QTest::keyClick(&preview, Qt::Key_Up);
    const QRgb ground = grabbed().pixel(200, 1);
    EXPECT_EQ(ground, grabbed().pixel(200, 20)) << "a little ground beyond the edge, and no more";
    EXPECT_NE(ground, grabbed().pixel(200, 40));
}

TEST_F(PreviewTest, DoubleClickKeyAndButtonZoomInAndOut)
{
    preview.showPage(page());
    const QPoint spot = middle() + QPoint(60, -30);
    QTest::mouseDClick(&preview, Qt::LeftButton, {}, spot);
    EXPECT_TRUE(preview.zoomButton()->isChecked());
    QTest::keyClick(&preview, Qt::Key_Escape);
    EXPECT_FALSE(preview.zoomButton()->isChecked());
    QTest::keyClick(&preview, Qt::Key_Z);
    EXPECT_TRUE(preview.zoomButton()->isChecked());
    QTest::mouseClick(preview.zoomButton(), Qt::LeftButton);
    EXPECT_FALSE(preview.zoomButton()->isChecked());
    preview.setZoomed(true);
    preview.showText(q("Nothing to print"));
    EXPECT_FALSE(preview.zoomButton()->isChecked());
    EXPECT_FALSE(preview.zoomButton()->isVisible());
}

TEST_F(PreviewTest, APhotoThatIsGoneStaysAsItsSmallCopyAndSaysSo)
{
    preview.showPage(page());
    ASSERT_TRUE(QFile::remove(folder.filePath(q("photo.png"))));
    zoom();
    EXPECT_TRUE(preview.captions().back().contains(q("photo.png")));
    EXPECT_NE(grabbed().pixel(200, 150), grabbed().pixel(1, 399)) << "a photo, not the ground";
}

TEST_F(PreviewTest, APhotoThatIsNoLongerWantedIsNotDelivered)
{
    const Photo first = page().photo;
    picture.fill(Qt::red);
    const QString path = folder.filePath(q("red.png"));
    ASSERT_TRUE(picture.save(path));
    SharpPhotoReader reader;
    std::vector<QColor> delivered;
    QObject::connect(&reader, &SharpPhotoReader::ready, &reader,
                     [&](const QImage& detail) { delivered.push_back(detail.pixelColor(1, 1)); });
    reader.read(first, {180, 120});
    reader.read(readPhotoFile(path).pages.at(0), {180, 120});
    ASSERT_TRUE(waitUntil([&] { return !reader.isReading(); }));
    drainMainQueue();
    EXPECT_EQ(delivered, std::vector<QColor>{QColor(Qt::red)});
}

TEST_F(PreviewTest, APhotoIsReadAfterItsCaptionAndDamageIsToldToWhoHasMovedOn)
{
    const Photo whole = page().photo;
    SheetPhotos photos(nullptr);
    photos.want({whole}, 0, true);
    ASSERT_TRUE(waitUntil([&] { return photos.details(whole).has_value(); }));
    photos.want({whole}, 200, true);
    EXPECT_TRUE(waitUntil([&] { return !photos.image(whole).isNull(); }));

    Photo cut = readPhotoFile(whole.path).pages.front();
    cut.path = writeFile(folder.filePath(q("cut.png")), readFile(whole.path).chopped(20000));
    cut.stamp = stampOf(cut.path);
    cut.preview = QImage();
    QStringList damaged;
    SmallCopies copies(nullptr);
    QObject::connect(&copies, &SmallCopies::damageFound, &copies,
                     [&](const QString& path) { damaged.append(path); });
    EXPECT_TRUE(copies.find(cut).isNull());
    copies.find(whole);
    EXPECT_TRUE(waitUntil([&] { return damaged == QStringList(cut.path); }));
}

TEST_F(PreviewTest, AProofComesByItselfAndIsNeverOfAnotherPhoto)
{
    PreviewPage proofed = page();
    proofed.layout.page += QSizeF(40.0, 40.0); // bare paper at its right and bottom
    proofed.screen.proof =
        ColourPlan{readFile(q("/usr/share/color/icc/ghostscript/default_cmyk.icc")), {}, true};
    proofed.screen.showsPaper = true;
    proofed.proofWords = q("Soft proof");
    const ScreenTransform screen(proofed.screen);
    const QImage wanted = screen.converted(picture);
    preview.showPage(proofed);
    EXPECT_TRUE(preview.captions().contains(q("Soft proof")));
    const QPoint bare = preview.sheetRect().bottomRight().toPoint() - QPoint(5, 5);
    EXPECT_TRUE(waitUntil([&] { return grabbed().pixelColor(bare) == screen.paper(); }));
    EXPECT_LT(qBlue(grabbed().pixel(bare)), 250);
    zoom();
    const QRgb first = wanted.pixel(900, 600);
    const auto shows = [&](QRgb colour) {
        const QImage shown = grabbed();
        for (int y = 0; y < shown.height(); ++y) {
            for (int x = 0; x < shown.width(); ++x) {
                if (shown.pixel(x, y) == colour)
                    return true;
            }
        }
        return false;
    };
    EXPECT_TRUE(waitUntil([&] { return shows(first); }));

    picture.fill(Qt::green);
    picture.save(folder.filePath(q("other.png")));
    proofed.photo = readPhotoFile(folder.filePath(q("other.png"))).pages.front();
    preview.setZoomed(false);
    preview.showPage(proofed);
    const QRgb green = screen.converted(picture).pixel(0, 0);
    EXPECT_TRUE(QSet<QRgb>({qRgb(0, 255, 0), green}).contains(grabbed().pixel(middle())));
    EXPECT_TRUE(waitUntil([&] { return grabbed().pixel(middle()) == green; }));
    PreviewPage two = proofed;
    two.layout.page.rheight() *= 2.0;
    two.sheet = SheetToPrint(two.photo, two.layout);
    PlacedPhoto lower = two.sheet.sheet.photos.front();
    for (QRectF* rect : {&lower.layout.frame, &lower.layout.imageable, &lower.layout.photo})
        rect->translate(0.0, proofed.layout.page.height());
    two.sheet.sheet.photos.push_back(lower);
    two.sheet.photos.push_back(two.photo);
    preview.showPage(two);
    EXPECT_TRUE(waitUntil([&] { return grabbed().pixel(middle() + QPoint(-20, 40)) == green; }));
    proofed.screen = {};
    proofed.look.isGray = true;
    preview.showPage(proofed);
    EXPECT_EQ(grabbed().pixel(middle()), qRgb(220, 220, 220)) << "as light as the green";
}

} // namespace halvern
