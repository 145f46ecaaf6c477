// SPDX-License-Identifier: MIT
#include "dialog/decode/readers.h"
#include "dialog/decode/tiff_file.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace halvern {

namespace {

constexpr quint64 kMostBuffer =
    quint64(1536) * 1024 * 1024; // for the tiles or strips that stand side by side

/// How the numbers of a picture lie in its file.
struct Layout {
    uint32_t width = 0;
    uint32_t height = 0;
    int bits = 0;
    int samples = 0;  ///< of each pixel, with those that are no colour
    int channels = 0; ///< colours among them
    bool isWhiteZero = false;
    bool isSeparate = false; ///< a plane for each sample
    bool isTiled = false;
    bool hasAlpha = false;
    bool isPremultiplied = false;

    int sampleBytes() const { return bits / 8; }
};

/// Reads a picture's samples row by row, those of a pixel beside each other.
class SampleRows {
public:
    SampleRows(TIFF* tiff, const Layout& layout) : tiff_(tiff), layout_(layout)
    {
        const bool isScanned = !layout.isTiled && !layout.isSeparate;
        if (!isScanned)
            preparePieces();
        else if (quint64(TIFFScanlineSize(tiff)) < rowBytes())
            throw Unreadable{PhotoFault::damaged};
        row_.resize(std::max<size_t>(rowBytes(), isScanned ? size_t(TIFFScanlineSize(tiff)) : 0));
    }

    size_t rowBytes() const
    {
        return size_t(layout_.width) * size_t(layout_.samples) * size_t(layout_.sampleBytes());
    }

    /// Null if it cannot be read.
    const uchar* next()
    {
        const uint32_t y = y_++;
        if (planeBytes_ > 0)
            return fromPieces(y);
        return TIFFReadScanline(tiff_, row_.data(), y, 0) < 0 ? nullptr : row_.data();
    }

private:
    void preparePieces()
    {
        pieceWidth_ = layout_.width;
        pieceHeight_ = layout_.height;
        if (layout_.isTiled) {
            TIFFGetField(tiff_, TIFFTAG_TILEWIDTH, &pieceWidth_);
            TIFFGetField(tiff_, TIFFTAG_TILELENGTH, &pieceHeight_);
        } else {
            TIFFGetFieldDefaulted(tiff_, TIFFTAG_ROWSPERSTRIP, &pieceHeight_);
            pieceHeight_ = std::min(pieceHeight_, layout_.height);
        }
        if (pieceWidth_ == 0 || pieceHeight_ == 0)
            throw Unreadable{PhotoFault::damaged};
        planes_ = layout_.isSeparate ? layout_.samples : 1;
        pixelBytes_ = size_t(layout_.sampleBytes() * (layout_.isSeparate ? 1 : layout_.samples));
        across_ = (layout_.width + pieceWidth_ - 1) / pieceWidth_;
        const auto pieceBytes = quint64(layout_.isTiled ? TIFFTileSize(tiff_) : TIFFStripSize(tiff_));
        const quint64 wanted = quint64(pieceWidth_) * pieceHeight_ * pixelBytes_;
        if (wanted == 0 || pieceBytes < wanted || pieceBytes > kMostBuffer ||
            wanted * across_ * quint64(planes_) > kMostBuffer)
            throw Unreadable{wanted == 0 || pieceBytes < wanted ? PhotoFault::damaged : PhotoFault::tooLarge};
        piece_.resize(pieceBytes);
        planeBytes_ = wanted * across_;
        pieces_.resize(planeBytes_ * size_t(planes_));
    }

    bool readPieces(uint32_t y)
    {
        const size_t pieceRow = pieceWidth_ * pixelBytes_;
        for (int plane = 0; plane < planes_; ++plane) {
            for (uint32_t column = 0; column < across_; ++column) {
                const uint32_t x = column * pieceWidth_;
                const auto sample = uint16_t(plane);
                const auto size = tmsize_t(piece_.size());
                const tmsize_t read =
                    layout_.isTiled ? TIFFReadEncodedTile(tiff_, TIFFComputeTile(tiff_, x, y, 0, sample),
                                                          piece_.data(), size)
                                    : TIFFReadEncodedStrip(tiff_, TIFFComputeStrip(tiff_, y, sample),
                                                           piece_.data(), size);
                if (read < 0)
                    return false;
                uchar* target = pieces_.data() + planeBytes_ * size_t(plane) + column * pieceRow;
                for (uint32_t row = 0; row < pieceHeight_; ++row)
                    std::memcpy(target + row * pieceRow * across_, piece_.data() + row * pieceRow, pieceRow);
            }
        }
        return true;
    }

    const uchar* fromPieces(uint32_t y)
    {
        if (y % pieceHeight_ == 0)
            isPieceWhole_ = readPieces(y);
        if (!isPieceWhole_)
            return nullptr;
        const size_t offset = (y % pieceHeight_) * pieceWidth_ * pixelBytes_ * across_;
        if (planes_ == 1)
            return pieces_.data() + offset;
        const auto bytes = size_t(layout_.sampleBytes());
        for (size_t plane = 0; plane < size_t(planes_); ++plane) {
            const uchar* from = pieces_.data() + planeBytes_ * plane + offset;
            uchar* to = row_.data() + plane * bytes;
            for (uint32_t x = 0; x < layout_.width; ++x, from += bytes, to += bytes * size_t(planes_))
                std::memcpy(to, from, bytes);
        }
        return row_.data();
    }

    TIFF* tiff_;
    Layout layout_;
    uint32_t y_ = 0;
    uint32_t pieceWidth_ = 0;
    uint32_t pieceHeight_ = 0;
    uint32_t across_ = 0;
    int planes_ = 0;
    size_t pixelBytes_ = 0;
    size_t planeBytes_ = 0; // 0: scanned
    bool isPieceWhole_ = false;
    std::vector<uchar> row_;
    std::vector<uchar> piece_;
    std::vector<uchar> pieces_; // those that hold the current row
};

template <typename Number> void takeColors(const Layout& layout, const Number* from, Number* to)
{
    const int pixels = int(layout.width);
    if (layout.hasAlpha && layout.samples == layout.channels + 1) {
        layOnWhite(from, to, pixels, layout.channels, layout.isPremultiplied,
                   layout.isWhiteZero || layout.channels == 4);
    } else {
        Number* target = to;
        for (int x = 0; x < pixels; ++x, from += layout.samples, target += layout.channels)
            std::copy_n(from, layout.channels, target);
    }
    if (layout.isWhiteZero) {
        const auto count = size_t(pixels) * size_t(layout.channels);
        std::transform(to, to + count, to, [](Number number) { return Number(~number); });
    }
}

/// Gray, RGB or four inks with 8 or 16 bits.
class PlainTiffSource : public PictureSource {
public:
    PlainTiffSource(TiffFile& file, const Layout& layout, const StoredPicture& picture)
        : file_(file), layout_(layout), rows_(file.get(), layout)
    {
        picture_ = picture;
        const bool isDeep = layout.bits == 16;
        picture_.format = layout.channels == 4   ? PixelFormat::cmyk8
                          : layout.channels == 1 ? (isDeep ? PixelFormat::gray16 : PixelFormat::gray8)
                                                 : (isDeep ? PixelFormat::rgb16 : PixelFormat::rgb8);
        deep_.resize(isDeep ? size_t(layout.width) * size_t(layout.channels) : 0);
    }

    bool readRow(uchar* row) override
    {
        const uchar* samples = rows_.next();
        if (!samples)
            return false;
        if (layout_.bits == 8) {
            takeColors(layout_, samples, row);
            return true;
        }
        takeColors(layout_, reinterpret_cast<const quint16*>(samples), deep_.data());
        if (picture_.format == PixelFormat::cmyk8)
            std::transform(deep_.begin(), deep_.end(), row,
                           [](quint16 ink) { return uchar((ink + 128) / 257); });
        else
            std::memcpy(row, deep_.data(), deep_.size() * sizeof(quint16));
        return true;
    }

    bool isDamaged() const override { return file_.hasComplained(); }

private:
    TiffFile& file_;
    Layout layout_;
    SampleRows rows_;
    std::vector<quint16> deep_;
};

/// All other kinds, which the library converts to RGB by itself: palettes, few bits, Lab, YCbCr.
class ConvertedTiffSource : public PictureSource {
public:
    ConvertedTiffSource(TiffFile& file, const Layout& layout, const StoredPicture& picture) : file_(file)
    {
        char why[1024] = {};
        if (!TIFFRGBAImageOK(file.get(), why))
            throw Unreadable{PhotoFault::unsupported};
        picture_ = picture;
        picture_.format = PixelFormat::rgb8;
        const auto photometric = file.field<uint16_t>(TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB);
        // The library converted the others' colours away.
        if (photometric != PHOTOMETRIC_PALETTE && photometric != PHOTOMETRIC_RGB)
            picture_.profile.clear();
        pixels_.resize(size_t(layout.width) * layout.height);
        const auto orientation = file.field<uint16_t>(TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT);
        if (!TIFFReadRGBAImageOriented(file.get(), layout.width, layout.height, pixels_.data(), orientation,
                                       0))
            throw Unreadable{PhotoFault::damaged};
    }

    bool readRow(uchar* row) override
    {
        const auto width = size_t(picture_.size.width());
        const uint32_t* pixel = pixels_.data() + width * size_t(y_++);
        for (size_t x = 0; x < width; ++x, ++pixel, row += 3) {
            // Premultiplied, as the library hands it over.
            const uint32_t bare = 255 - TIFFGetA(*pixel);
            row[0] = uchar(std::min<uint32_t>(TIFFGetR(*pixel) + bare, 255));
            row[1] = uchar(std::min<uint32_t>(TIFFGetG(*pixel) + bare, 255));
            row[2] = uchar(std::min<uint32_t>(TIFFGetB(*pixel) + bare, 255));
        }
        return true;
    }

    bool isDamaged() const override { return file_.hasComplained(); }

private:
    TiffFile& file_;
    std::vector<uint32_t> pixels_;
    int y_ = 0;
};

class TiffReader : public PhotoReader {
public:
    TiffReader(FileBytes bytes, const ExifNotes& notes) : file_(bytes), notes_(notes)
    {
        pages_ = file_.pictures();
    }

    QString kind() const override { return QStringLiteral("TIFF"); }

    QList<qint32> pages() const override { return pages_; }

    bool isCutOff() const override { return file_.isCutOff(); }

    std::unique_ptr<PictureSource> open(const ReadRequest& request) override
    {
        file_.show(request.page);
        Layout layout = layoutOf();
        file_.lookForHoles();
        const StoredPicture picture = describe(layout);
        if (isPlain(&layout))
            return std::make_unique<PlainTiffSource>(file_, layout, picture);
        return std::make_unique<ConvertedTiffSource>(file_, layout, picture);
    }

private:
    Layout layoutOf() const
    {
        Layout layout;
        TIFFGetField(file_.get(), TIFFTAG_IMAGEWIDTH, &layout.width);
        TIFFGetField(file_.get(), TIFFTAG_IMAGELENGTH, &layout.height);
        checkSize(layout.width, layout.height);
        layout.bits = file_.field<uint16_t>(TIFFTAG_BITSPERSAMPLE, 1);
        layout.samples = file_.field<uint16_t>(TIFFTAG_SAMPLESPERPIXEL, 1);
        layout.isSeparate =
            file_.field<uint16_t>(TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG) == PLANARCONFIG_SEPARATE &&
            layout.samples > 1;
        layout.isTiled = TIFFIsTiled(file_.get());
        uint16_t extras = 0;
        uint16_t* kinds = nullptr;
        if (TIFFGetFieldDefaulted(file_.get(), TIFFTAG_EXTRASAMPLES, &extras, &kinds) && extras > 0 &&
            kinds) {
            layout.isPremultiplied = kinds[0] == EXTRASAMPLE_ASSOCALPHA;
            layout.hasAlpha = layout.isPremultiplied || kinds[0] == EXTRASAMPLE_UNASSALPHA;
        }
        return layout;
    }

    bool isPlain(Layout* layout) const
    {
        TIFF* tiff = file_.get();
        const auto photometric = file_.field<uint16_t>(TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_MINISBLACK);
        const auto compression = file_.field<uint16_t>(TIFFTAG_COMPRESSION, COMPRESSION_NONE);
        const auto numbers = file_.field<uint16_t>(TIFFTAG_SAMPLEFORMAT, SAMPLEFORMAT_UINT);
        layout->channels = photometric == PHOTOMETRIC_RGB ? 3 : photometric == PHOTOMETRIC_SEPARATED ? 4 : 1;
        layout->isWhiteZero = photometric == PHOTOMETRIC_MINISWHITE;
        if (photometric == PHOTOMETRIC_YCBCR && compression == COMPRESSION_JPEG && !layout->isSeparate) {
            TIFFSetField(tiff, TIFFTAG_JPEGCOLORMODE, JPEGCOLORMODE_RGB);
            layout->channels = 3;
        } else if (photometric != PHOTOMETRIC_RGB && photometric != PHOTOMETRIC_SEPARATED &&
                   photometric != PHOTOMETRIC_MINISBLACK && photometric != PHOTOMETRIC_MINISWHITE) {
            return false;
        }
        const bool isCmyk = file_.field<uint16_t>(TIFFTAG_INKSET, INKSET_CMYK) == INKSET_CMYK;
        if (photometric == PHOTOMETRIC_SEPARATED && !isCmyk)
            throw Unreadable{PhotoFault::unsupported};
        return (layout->bits == 8 || layout->bits == 16) && numbers == SAMPLEFORMAT_UINT &&
               layout->samples >= layout->channels;
    }

    StoredPicture describe(const Layout& layout) const
    {
        StoredPicture picture;
        picture.size = picture.fullSize = QSize(int(layout.width), int(layout.height));
        picture.colorTag = notes_.colorTag;
        picture.orientation =
            orientationOfTag(file_.field<uint16_t>(TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT));
        const auto resolution = double(file_.field<float>(TIFFTAG_XRESOLUTION, 0.0F));
        const auto unit = file_.field<uint16_t>(TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH);
        if (qIsFinite(resolution) && unit != RESUNIT_NONE)
            picture.dotsPerInch = unit == RESUNIT_CENTIMETER ? resolution * kCentimetresPerInch : resolution;
        uint32_t length = 0;
        void* profile = nullptr;
        if (TIFFGetField(file_.get(), TIFFTAG_ICCPROFILE, &length, &profile) && profile)
            picture.profile = QByteArray(static_cast<const char*>(profile), qsizetype(length));
        return picture;
    }

    TiffFile file_;
    ExifNotes notes_;
    QList<qint32> pages_;
};

} // namespace

std::unique_ptr<PhotoReader> makeTiffReader(FileBytes bytes, const ExifNotes& notes)
{
    return std::make_unique<TiffReader>(bytes, notes);
}

} // namespace halvern
