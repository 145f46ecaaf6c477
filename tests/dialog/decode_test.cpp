// SPDX-License-Identifier: MIT
#include "dialog/page/photo.h"
#include "dialog/page/photo_facts.h"
#include "dialog/page/photo_opening.h"
#include "dialog/photo/photo_decoder.h"
#include "tests/dialog/broken_photos.h"
#include "tests/support/test.h"

#include <tiffio.h>

namespace halvern {
namespace {

constexpr int kTiffWidth = 70;
constexpr int kTiffHeight = 50;

/// What a TIFF file of one colour is made of.
struct Recipe {
    const char* name;
    uint16_t photometric;
    uint16_t bits;
    std::vector<uint16_t> samples; ///< as they are stored
    bool isTiled;
    bool isSeparate;
    PixelFormat format;
    std::vector<quint16> wanted; ///< as they are handed over
};

void writeTiff(const QString& path, const Recipe& recipe)
{
    TIFF* tiff = TIFFOpen(qPrintable(path), "w");
    const auto count = uint16_t(recipe.samples.size());
    TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, kTiffWidth);
    TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, kTiffHeight);
    TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, recipe.bits);
    TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, count);
    TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, recipe.photometric);
    TIFFSetField(tiff, TIFFTAG_COMPRESSION, COMPRESSION_LZW);
    TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, recipe.isSeparate ? PLANARCONFIG_SEPARATE : PLANARCONFIG_CONTIG);
    if (const uint16_t alpha = EXTRASAMPLE_UNASSALPHA; recipe.wanted.size() < count)
        TIFFSetField(tiff, TIFFTAG_EXTRASAMPLES, 1, &alpha);
    if (recipe.isTiled) {
        TIFFSetField(tiff, TIFFTAG_TILEWIDTH, 32);
        TIFFSetField(tiff, TIFFTAG_TILELENGTH, 32);
    } else {
        TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, 20);
    }
    const uint32_t pieces = recipe.isTiled ? TIFFNumberOfTiles(tiff) : TIFFNumberOfStrips(tiff);
    const tmsize_t size = recipe.isTiled ? TIFFTileSize(tiff) : TIFFStripSize(tiff);
    for (uint32_t i = 0; i < pieces; ++i) {
        QByteArray piece(size, '\0');
        const uint32_t plane = recipe.isSeparate ? i / (pieces / count) : 0;
        for (qsizetype at = 0; at < size / (recipe.bits / 8); ++at) {
            const uint16_t sample = recipe.samples[recipe.isSeparate ? plane : size_t(at) % count];
            if (recipe.bits == 16)
                reinterpret_cast<uint16_t*>(piece.data())[at] = sample;
            else
                piece[at] = char(sample);
        }
        if (recipe.isTiled)
            TIFFWriteEncodedTile(tiff, i, piece.data(), size);
        else
            TIFFWriteEncodedStrip(tiff, i, piece.data(), size);
    }
    TIFFClose(tiff);
}

} // namespace

class DecodeTest : public testing::Test {
protected:
    void look(const BrokenPhoto& photo)
    {
        SCOPED_TRACE(qPrintable(photo.name));
        const PhotoFile read = openPhotoFile(writeFile(folder.filePath(photo.name), photo.bytes));
        EXPECT_TRUE(!read.pages.empty() || !read.problem.isEmpty());
        EXPECT_TRUE(read.problem.isEmpty() || read.problem.contains(photo.name)) << qPrintable(read.problem);
        EXPECT_FALSE(read.problem.contains(q("takes too long")) ||
                     read.problem.contains(q("halvern-decode")));
        EXPECT_TRUE(!photo.isWhole || read.problem.isEmpty()) << qPrintable(read.problem);
        EXPECT_TRUE(!photo.isCut || !read.problem.isEmpty()) << photo.bytes.size();
        // What is not told of goes to the printer: whoever decodes it must find nothing, either.
        for (const Photo& page : read.problem.isEmpty() ? read.pages : std::vector<Photo>()) {
            const SmallCopy copy = readSmallCopy(page);
            EXPECT_FALSE(copy.isDamaged || copy.image.isNull()) << qPrintable(copy.problem);
        }
        told += read.problem.isEmpty() ? 0 : 1;
    }

    DecoderLease decoders;
    QTemporaryDir folder;
    int told = 0;
};

TEST_F(DecodeTest, TiffSamplesComeAsTheyAreStored)
{
    const Recipe recipes[] = {
        {"rgb 16 in strips",
         PHOTOMETRIC_RGB,
         16,
         {1000, 2000, 65000},
         false,
         false,
         PixelFormat::rgb16,
         {1000, 2000, 65000}},
        {"rgb 16 in planes of tiles",
         PHOTOMETRIC_RGB,
         16,
         {1000, 2000, 65000},
         true,
         true,
         PixelFormat::rgb16,
         {1000, 2000, 65000}},
        {"rgb 8 in planes", PHOTOMETRIC_RGB, 8, {1, 2, 250}, false, true, PixelFormat::rgb8, {1, 2, 250}},
        {"half transparent",
         PHOTOMETRIC_RGB,
         8,
         {0, 100, 255, 51},
         true,
         false,
         PixelFormat::rgb8,
         {204, 224, 255}},
        {"four inks in tiles",
         PHOTOMETRIC_SEPARATED,
         8,
         {10, 20, 30, 40},
         true,
         false,
         PixelFormat::cmyk8,
         {10, 20, 30, 40}},
        {"four deep inks",
         PHOTOMETRIC_SEPARATED,
         16,
         {257, 514, 0, 65535},
         false,
         false,
         PixelFormat::cmyk8,
         {1, 2, 0, 255}},
        {"gray, white is 0", PHOTOMETRIC_MINISWHITE, 8, {5}, true, false, PixelFormat::gray8, {250}},
        {"a fifth of four inks",
         PHOTOMETRIC_SEPARATED,
         8,
         {10, 20, 30, 40, 51},
         false,
         false,
         PixelFormat::cmyk8,
         {2, 4, 6, 8}},
        {"a fifth of gray, white is 0",
         PHOTOMETRIC_MINISWHITE,
         8,
         {100, 51},
         false,
         false,
         PixelFormat::gray8,
         {235}},
    };
    for (const Recipe& recipe : recipes) {
        SCOPED_TRACE(recipe.name);
        const QString path = folder.filePath(q("photo.tif"));
        writeTiff(path, recipe);
        PhotoDecoder decoder(path);
        const StoredPicture picture = decoder.begin({0, 0, 0}).picture;
        EXPECT_EQ(picture.size, QSize(kTiffWidth, kTiffHeight));
        ASSERT_EQ(picture.format, recipe.format);
        QByteArray rows(picture.rowBytes() * kTiffHeight, '\0');
        ASSERT_EQ(decoder.read(reinterpret_cast<uchar*>(rows.data()), kTiffHeight), kTiffHeight);
        EXPECT_FALSE(decoder.isDamaged());
        const bool isDeep = bytesPerPixel(picture.format) > channelsOf(picture.format);
        std::vector<quint16> all;
        for (qsizetype i = 0; i < rows.size() / (isDeep ? 2 : 1); ++i)
            all.push_back(isDeep ? reinterpret_cast<const quint16*>(rows.constData())[i] : quint8(rows[i]));
        for (size_t i = 0; i < all.size(); ++i)
            ASSERT_EQ(all[i], recipe.wanted[i % recipe.wanted.size()]) << i;
    }
}

TEST_F(DecodeTest, WhateverIsBrokenIsToldAndHarmsNobody)
{
    for (const BrokenPhoto& photo : brokenPhotos(20, 8))
        look(photo);
}

// scripts/broken-photos runs it.
TEST_F(DecodeTest, DISABLED_HundredsOfBrokenFilesAreToldAndHarmNobody)
{
    const std::vector<BrokenPhoto> photos = brokenPhotos(1, 40);
    for (const BrokenPhoto& photo : photos)
        look(photo);
    std::printf("%zu files, told of: %d\n", photos.size(), told);
}

TEST_F(DecodeTest, AReaderThatDiesTakesNobodyAlong)
{
    QImage image(3000, 3000, QImage::Format_RGB32);
    const QString path = folder.filePath(q("shrinks.bmp"));
    ASSERT_TRUE(image.save(path));
    PhotoDecoder decoder(path);
    ASSERT_EQ(decoder.file().fault, PhotoFault::none);
    // What is mapped and no longer there ends whoever looks at it.
    ASSERT_TRUE(QFile::resize(path, 0));
    EXPECT_EQ(decoder.begin({0, 0, 0}).fault, PhotoFault::crashed);
    EXPECT_TRUE(decoder.isOver());
    ASSERT_TRUE(QImage(30, 30, QImage::Format_Grayscale8).save(path));
    EXPECT_EQ(readPhotoFile(path).problem, QString()) << "the next file is read";
}

TEST_F(DecodeTest, AHoleInDeflatedDataIsToldAndAnEvenPictureHasNone)
{
    const QString path = folder.filePath(q("one_strip.tif"));
    const auto write = [&](const QByteArray& pixels) {
        TIFF* tiff = TIFFOpen(qPrintable(path), "w");
        TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, 3000);
        TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, 700);
        TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, 8);
        TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_MINISBLACK);
        TIFFSetField(tiff, TIFFTAG_COMPRESSION, COMPRESSION_ADOBE_DEFLATE);
        TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, 700);
        for (uint32_t y = 0; y < 700; ++y)
            TIFFWriteScanline(tiff, const_cast<char*>(pixels.constData()) + y * 3000, y);
        TIFFClose(tiff);
        return readFile(path);
    };
    EXPECT_TRUE(write(QByteArray(2'100'000, '\xFF')).contains(QByteArray(480, '\0')));
    EXPECT_EQ(readPhotoFile(path).problem, QString()) << "zeros that belong there";
    QByteArray noise(2'100'000, '\0');
    for (qsizetype i = 0; i < noise.size(); ++i)
        noise[i] = char(quint32(i * i) >> 7 & 15);
    QByteArray bytes = write(noise);
    EXPECT_EQ(readPhotoFile(path).problem, QString());
    writeFile(path, bytes.replace(bytes.size() / 2, 4096, QByteArray(4096, '\0')));
    EXPECT_NE(readPhotoFile(path).problem, QString());
}

TEST_F(DecodeTest, DamageThatIsFoundOnTheWayIsToldAsWhatItIs)
{
    QImage image(600, 400, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    const QString path = folder.filePath(q("photo.jpg"));
    ASSERT_TRUE(image.save(path));
    const Photo whole = openPhotoFile(path).pages.at(0);
    const QByteArray bytes = readFile(path);
    writeFile(path, bytes.first(bytes.size() / 2));
    Photo cut = whole;
    cut.stamp = stampOf(path);
    QString problem;
    readPixels(cut, 300, &problem);
    EXPECT_TRUE(problem.contains(q("missing"))) << qPrintable(problem);
    readPixels(whole, 300, &problem);
    EXPECT_TRUE(problem.contains(q("changed"))) << qPrintable(problem);
    cut.printsDamaged = true;
    EXPECT_FALSE(readPixels(cut, 300, &problem).isNull());
    EXPECT_EQ(problem, QString());
}

TEST_F(DecodeTest, TheNextPictureMayBeAskedForBeforeTheLastRow)
{
    const QString path = folder.filePath(q("large.bmp"));
    ASSERT_TRUE(QImage(3000, 3000, QImage::Format_RGB32).save(path));
    PhotoDecoder decoder(path);
    QByteArray rows(qsizetype(3000) * 3000 * 3, '\0');
    auto* to = reinterpret_cast<uchar*>(rows.data());
    for (const int some : {1, 700, 0, 3000}) {
        ASSERT_EQ(decoder.begin({0, 0, 0}).fault, PhotoFault::none);
        EXPECT_EQ(decoder.read(to, some), some);
    }
}

TEST(DecoderWireTest, ADecoderThatLiesIsNotBelieved)
{
    OpenAnswer opened;
    opened.details.rating = 1 << 30;
    OpenAnswer taken;
    ASSERT_TRUE(decode(encoded(opened), taken));
    EXPECT_EQ(taken.details.rating, 5);
    // 4 billion pages, of which none follows.
    EXPECT_FALSE(decode(encoded(opened).replace(3, 4, QByteArray(4, '\xFF')), taken));
    PictureAnswer picture;
    picture.picture.size = picture.picture.fullSize = QSize(40, 30);
    for (const int rows : {30, 31}) {
        picture.bandRows = rows;
        PictureAnswer answer;
        EXPECT_EQ(decode(encoded(picture), answer), rows == 30);
    }
}

TEST_F(DecodeTest, WhatAFileTellsIsReadAsPlainText)
{
    const QByteArray text("Lake <b>Como</b>", 17);
    const QByteArray entry = QByteArray("\x0E\x01\x02\0\x11\0\0\0\x1A\0\0\0", 12);
    const QByteArray exif =
        QByteArray("Exif\0\0II*\0\x08\0\0\0\x01\0", 16) + entry + QByteArray(4, '\0') + text;
    const QString path = folder.filePath(q("photo.jpg"));
    ASSERT_TRUE(QImage(60, 40, QImage::Format_RGB32).save(path));
    QByteArray jpeg = readFile(path);
    jpeg.insert(2, QByteArray("\xFF\xE1\0", 3) + char(exif.size() + 2) + exif);
    Photo photo;
    photo.path = writeFile(path, jpeg);
    const PhotoFacts facts = readPhotoFacts(photo);
    EXPECT_EQ(facts.problem, QString());
    EXPECT_EQ(facts.details.kind, q("JPEG"));
    EXPECT_EQ(facts.details.description, q("Lake <b>Como</b>"));
    const QString raw = writeFile(folder.filePath(q("x.raf")), "FUJIFILMCCD-RAW 0201");
    EXPECT_TRUE(readPhotoFile(raw).problem.contains(q("camera RAW")));
}

TEST(WithoutDecoderTest, ASentenceSaysThatTheReaderIsMissing)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(q("photo.png"));
    ASSERT_TRUE(QImage(30, 30, QImage::Format_RGB32).save(path));
    for (const char* helper : {"/nonexistent", "/bin/true"}) {
        qputenv("HALVERN_DECODE", helper);
        const QString problem = readPhotoFile(path).problem;
        EXPECT_TRUE(problem.contains(q("halvern-decode")) && problem.contains(path)) << qPrintable(problem);
    }
    qunsetenv("HALVERN_DECODE");
    EXPECT_EQ(readPhotoFile(path).problem, QString());
}

} // namespace halvern
