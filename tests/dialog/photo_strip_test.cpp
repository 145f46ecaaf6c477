// SPDX-License-Identifier: MIT
// The photos in a row: their order, what is done with those that are selected, and their thumbnails.
#include "dialog/page/thumbnail.h"
#include "dialog/preview/crop_editor.h"
#include "dialog/preview/preview_widget.h"
#include "tests/dialog/dialog_support.h"

#include <QBuffer>
#include <QListView>

namespace halvern {
namespace {

QString fileNames(const std::vector<Photo>& photos)
{
    QStringList names;
    for (const Photo& photo : photos)
        names.append(QFileInfo(photo.path).baseName());
    return names.join(u' ');
}

QByteArray jpegOf(const QSize& size, Qt::GlobalColor colour)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    QBuffer buffer;
    image.save(&buffer, "JPG");
    return buffer.data();
}

// A TIFF file of two directories, the second with the thumbnail's place and length, in an Exif segment.
QByteArray withThumbnail(QByteArray photo, const QByteArray& thumbnail)
{
    const auto number = [](quint32 value) {
        return QByteArray(reinterpret_cast<const char*>(&value), sizeof value);
    };
    const QByteArray entryHead("\x04\0\x01\0\0\0", 6);
    const QByteArray tiff = QByteArray("II*\0\x08\0\0\0\0\0\x0e\0\0\0\x02\0", 16) +
                            QByteArray("\x01\x02", 2) + entryHead + number(44) + QByteArray("\x02\x02", 2) +
                            entryHead + number(quint32(thumbnail.size())) + number(0);
    const QByteArray segment = QByteArray("Exif\0\0", 6) + tiff + thumbnail;
    const auto length = quint16(segment.size() + 2);
    return photo.insert(2, QByteArray("\xFF\xE1") + char(length >> 8) + char(length & 0xFF) + segment);
}

} // namespace

class PhotoStripTest : public testing::Test {
protected:
    PhotoStripTest()
    {
        QImage picture(40, 30, QImage::Format_RGB32);
        for (const char* name : {"a", "b", "c", "d"}) {
            picture.fill(Qt::blue);
            request.files.append(folder.filePath(q(name) + q(".png")));
            picture.save(request.files.last());
        }
    }

    // Without a print server.
    const QByteArray server = qgetenv("CUPS_SERVER");
    const bool isAway = qputenv("CUPS_SERVER", "/nonexistent/cups.sock");
    QTemporaryDir folder;
    SessionRequest request;
    FakePanels panels;

    void TearDown() override { qputenv("CUPS_SERVER", server); }
};

TEST_F(PhotoStripTest, PhotosKeepTheirOrderWhenTheFirstTakesLongest)
{
    QImage large(5000, 3000, QImage::Format_RGB32);
    large.fill(Qt::red);
    ASSERT_TRUE(large.save(request.files.first()));
    DialogSession session(request, panels);
    session.start();
    ASSERT_TRUE(waitUntil([&] { return session.hasPhotos(); }));
    EXPECT_EQ(fileNames(session.photos()), q("a b c d"));
}

TEST_F(PhotoStripTest, WhatIsChosenFollowsItsPhotosAndEachStepIsTakenBack)
{
    DialogSession session(request, panels);
    session.start();
    ASSERT_TRUE(waitUntil([&] { return session.hasPhotos(); }));
    PageSettings page = session.page();
    page.pages.ranges = q("2-3");
    session.setPage(page);
    const auto state = [&] { return fileNames(session.photos()) + u' ' + session.page().pages.ranges; };
    const auto expect = [&](const char* changed, const char* undone) {
        EXPECT_EQ(state(), q(changed));
        session.undoLastChange();
        EXPECT_EQ(state(), q(undone));
    };
    session.movePhotos({1, 3}, 0);
    expect("b d a c 1, 4", "a b c d 2-3");
    session.movePhotos({0}, 3);
    expect("b c a d 1-2", "a b c d 2-3");
    session.removePhotos({1});
    session.setPhotoCopies({1}, 5);
    expect("a c d 2", "a b c d 2-3");
    EXPECT_EQ(session.photos()[2].placement.copies, 5) << "what was set since stays";
    session.removePhotos({1, 2});
    expect("a d ", "a b c d 2-3");
    session.choosePhotos({0, 1, 3});
    expect("a b c d 1-2, 4", "a b c d 2-3");

    session.setPlacement(0, {{0.0, 1.0}, 2.0, 1});
    session.cropAllAs(0);
    EXPECT_EQ(session.photos()[3].placement.zoom, 2.0);
    session.undoLastChange();
    EXPECT_EQ(session.photos()[3].placement, PhotoPlacement());
    EXPECT_EQ(session.photos()[0].placement.zoom, 2.0);

    QStringList told;
    QObject::connect(&session, &DialogSession::stepTaken, [&](const QString& words) { told.append(words); });
    for (const double width : {100.0, 110.0, 120.0}) {
        PageSettings wider = session.page();
        wider.sheets.photo = {width, 80.0};
        session.changeSheets(wider);
    }
    session.undoLastChange();
    EXPECT_EQ(session.page().sheets.photo, QSizeF()) << "three clicks on an arrow are one step";
    session.chooseLayout(q("2x2"));
    session.undoLastChange();
    EXPECT_EQ(session.page().sheets.layout, QString());
    EXPECT_EQ(told.size(), 4);
}

TEST_F(PhotoStripTest, TheKeyboardDoesWhatTheMouseDoes)
{
    DialogSession session(request, panels);
    PrintDialog dialog(session);
    dialog.resize(1240, 780);
    dialog.show();
    session.start();
    ASSERT_TRUE(waitUntil([&] { return session.hasPhotos(); }) && QTest::qWaitForWindowActive(&dialog));
    auto* const list = dialog.findChild<QListView*>(q("photoList"));
    ASSERT_TRUE(list->isVisible());
    list->setFocus();
    const auto press = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(list, key, modifiers);
    };
    const auto words = [&] { return list->currentIndex().data(Qt::AccessibleTextRole).toString(); };
    auto* const number = dialog.findChild<QLabel*>(q("photoNumber"));
    press(Qt::Key_Right);
    EXPECT_TRUE(number->text().startsWith(q("2 of 4")) && number->text().contains(q("b.png")))
        << qPrintable(number->text());
    press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(fileNames(session.photos()), q("a c b d"));
    EXPECT_TRUE(number->text().startsWith(q("3 of 4"))) << "the photo that moves stays in sight";
    press(Qt::Key_Plus);
    EXPECT_TRUE(words().startsWith(q("Photo 3 of 4")) && words().endsWith(q("2 copies")))
        << qPrintable(words());
    press(Qt::Key_Space);
    EXPECT_EQ(session.page().pages.ranges, q("1-2, 4"));
    EXPECT_TRUE(words().contains(q("not printed")));
    EXPECT_TRUE(number->text().contains(q("b.png"))) << "and can be looked at all the same";
    press(Qt::Key_Return);
    EXPECT_TRUE(dialog.findChild<CropEditor*>()->isVisible());
    EXPECT_EQ(dialog.run(), nullptr) << "Return prints nothing here";
    QStringList visited;
    for (int i = 0; i < 6; ++i) {
        visited.append(dialog.focusWidget()->objectName());
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(visited.join(u' '), q("cropEditor cropCenter cropTurn cropWhole cropAll cropDone"));
    list->setFocus();
    press(Qt::Key_End, Qt::ShiftModifier);
    press(Qt::Key_Delete);
    EXPECT_EQ(fileNames(session.photos()), q("a c"));
    press(Qt::Key_Delete);
    EXPECT_FALSE(list->isVisible()) << "one photo needs no row";
}

TEST_F(PhotoStripTest, TheDesktopsThumbnailsAreUsedWhileTheyAreOfTheSameFile)
{
    EXPECT_TRUE(ThumbnailCache(q("/t"))
                    .pathFor(q("/home/jens/photos/me.png"), ThumbnailSize::normal)
                    .endsWith(q("/normal/c6ee772d9e49320e97ec29a7eb5b1697.png")));
    const ThumbnailCache cache(folder.filePath(q("kept")));
    const QString& photo = request.files.front();
    QImage thumbnail(128, 96, QImage::Format_RGB32);
    thumbnail.fill(Qt::green);
    ASSERT_TRUE(cache.store(photo, 1700000000, ThumbnailSize::normal, thumbnail));
    const QString path = cache.pathFor(photo, ThumbnailSize::normal);
    EXPECT_EQ(cache.find(photo, 1700000000, ThumbnailSize::normal), path);
    EXPECT_FALSE(cache.find(photo, 1700000000, ThumbnailSize::large)) << "it is too small for that";
    EXPECT_FALSE(cache.find(photo, 1700000001, ThumbnailSize::normal)) << "the photo is another one now";
    constexpr auto kOthers = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther |
                             QFile::WriteOther | QFile::ExeOther;
    EXPECT_FALSE(QFile::permissions(path) & kOthers);
    EXPECT_FALSE(QFile::permissions(QFileInfo(path).path()) & kOthers);
    writeFile(path, "no picture");
    EXPECT_FALSE(cache.find(photo, 1700000000, ThumbnailSize::normal));
}

TEST_F(PhotoStripTest, AThumbnailInThePhotoIsShownIfItShowsAllOfIt)
{
    const QByteArray photo = jpegOf({400, 300}, Qt::blue);
    for (const auto& [size, isShown] : {std::pair(QSize(160, 120), true), {QSize(160, 100), false}}) {
        const QString path =
            writeFile(folder.filePath(q("camera.jpg")), withThumbnail(photo, jpegOf(size, Qt::red)));
        const PhotoFile file = readPhotoFile(path);
        ASSERT_EQ(file.pages.size(), 1u) << qPrintable(file.problem);
        Photo opened = file.pages.front();
        opened.preview = QImage();
        const QImage made = readThumbnail(opened, ThumbnailSize::normal, nullptr);
        ASSERT_EQ(made.size(), QSize(128, 96));
        EXPECT_EQ(made.pixelColor(60, 50).red() > 200, isShown);
    }
}

} // namespace halvern
