// SPDX-License-Identifier: MIT
#include "dialog/decode/camera_notes.h"
#include "dialog/decode/made_profile.h"
#include "dialog/decode/readers.h"
#include "platform/foundation/units.h"

#include <algorithm>
#include <csetjmp>
#include <cstring>
#include <type_traits>
#include <vector>

#include <png.h>

namespace halvern {

namespace {

constexpr png_alloc_size_t kLongestChunk = 64 * 1024 * 1024;
constexpr double kUsualGamma = 1.0 / 2.2;

class PngSource : public PictureSource {
public:
    PngSource(FileBytes bytes, const ExifNotes& notes) : PngSource()
    {
        bytes_ = bytes;
        notes_ = notes;
        png_ = png_create_read_struct(PNG_LIBPNG_VER_STRING, this, &PngSource::leave,
                                      [](png_structp, png_const_charp) {});
        info_ = png_ ? png_create_info_struct(png_) : nullptr;
        if (!info_)
            throw Unreadable{PhotoFault::tooLarge};
        png_set_read_fn(png_, this, &PngSource::give);
        if (!guarded([this] { readHeader(); }))
            throw Unreadable{PhotoFault::damaged};
        checkSize(png_get_image_width(png_, info_), png_get_image_height(png_, info_));
        describe();
        isInterlaced_ = png_get_interlace_type(png_, info_) != PNG_INTERLACE_NONE;
        line_.resize(size_t(picture_.size.width()) * size_t(channelsOf(picture_.format) + 1) * 2);
    }

    ~PngSource() override { png_destroy_read_struct(&png_, &info_, nullptr); }

    bool readRow(uchar* row) override
    {
        const uchar* line = isInterlaced_ ? interlacedLine() : line_.data();
        png_bytep target = line_.data();
        if (!isInterlaced_ && !guarded([this, target] { png_read_row(png_, target, nullptr); }))
            return false;
        if (!line)
            return false;
        take(line, row);
        // The last pixels' check sum stands behind them.
        if (++y_ == picture_.size.height() && !isInterlaced_ &&
            !guarded([this] { png_read_end(png_, nullptr); }))
            isDamaged_ = true;
        return true;
    }

    bool isDamaged() const override { return isDamaged_; }

private:
    // Whoever fails after this one is tidied up by the destructor.
    PngSource() = default;

    // libpng leaves a failed call by longjmp, which may skip no destructor.
    template <typename Step> bool guarded(Step step)
    {
        static_assert(std::is_trivially_destructible_v<Step>);
        if (setjmp(onError_))
            return false;
        step();
        return true;
    }

    static void leave(png_structp png, png_const_charp)
    {
        std::longjmp(static_cast<PngSource*>(png_get_error_ptr(png))->onError_, 1);
    }

    static void give(png_structp png, png_bytep to, size_t size)
    {
        auto& self = *static_cast<PngSource*>(png_get_io_ptr(png));
        if (size > self.bytes_.size() - self.place_)
            png_error(png, "cut off");
        std::memcpy(to, self.bytes_.data() + self.place_, size);
        self.place_ += size;
    }

    void readHeader()
    {
        png_set_crc_action(png_, PNG_CRC_DEFAULT, PNG_CRC_WARN_DISCARD);
        png_set_user_limits(png_, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
        png_set_chunk_malloc_max(png_, kLongestChunk);
        png_read_info(png_, info_);
        const int type = png_get_color_type(png_, info_);
        if (type == PNG_COLOR_TYPE_PALETTE)
            png_set_palette_to_rgb(png_);
        if (type == PNG_COLOR_TYPE_GRAY)
            png_set_expand_gray_1_2_4_to_8(png_);
        if (png_get_valid(png_, info_, PNG_INFO_tRNS))
            png_set_tRNS_to_alpha(png_);
        if (png_get_bit_depth(png_, info_) == 16 && Q_BYTE_ORDER == Q_LITTLE_ENDIAN)
            png_set_swap(png_);
        png_set_interlace_handling(png_);
        png_read_update_info(png_, info_);
    }

    void describe()
    {
        picture_.size = picture_.fullSize =
            QSize(int(png_get_image_width(png_, info_)), int(png_get_image_height(png_, info_)));
        const int type = png_get_color_type(png_, info_);
        isDeep_ = png_get_bit_depth(png_, info_) == 16;
        hasAlpha_ = type & PNG_COLOR_MASK_ALPHA;
        picture_.format = type & PNG_COLOR_MASK_COLOR ? (isDeep_ ? PixelFormat::rgb16 : PixelFormat::rgb8)
                                                      : (isDeep_ ? PixelFormat::gray16 : PixelFormat::gray8);
        png_uint_32 across = 0;
        png_uint_32 down = 0;
        int unit = 0;
        if (png_get_pHYs(png_, info_, &across, &down, &unit) && unit == PNG_RESOLUTION_METER)
            picture_.dotsPerInch = across * kMetresPerInch;
        describeColors();
        picture_.orientation = notes_.orientation;
        png_uint_32 length = 0;
        png_bytep exif = nullptr;
        if (png_get_eXIf_1(png_, info_, &length, &exif) && exif)
            picture_.orientation = notesOfExif({exif, length}).orientation;
    }

    void describeColors()
    {
        png_charp name = nullptr;
        png_bytep profile = nullptr;
        png_uint_32 length = 0;
        int number = 0;
        double gamma = 0.0;
        if (png_get_iCCP(png_, info_, &name, &number, &profile, &length) && profile) {
            picture_.profile = QByteArray(reinterpret_cast<const char*>(profile), qsizetype(length));
        } else if (png_get_sRGB(png_, info_, &number)) {
            picture_.colorTag = ColorTag::sRgb;
        } else if (png_get_gAMA(png_, info_, &gamma) && gamma > 0.0) {
            Primaries p = kSrgbPrimaries;
            png_get_cHRM(png_, info_, &p.white.x, &p.white.y, &p.red.x, &p.red.y, &p.green.x, &p.green.y,
                         &p.blue.x, &p.blue.y);
            // sRGB's primaries and a gamma of 2.2 is how programs say sRGB.
            if (isNear(p, kSrgbPrimaries) && qAbs(gamma - kUsualGamma) < 0.01)
                picture_.colorTag = ColorTag::sRgb;
            else if (channelsOf(picture_.format) == 3)
                picture_.profile = profileFor(p, 1.0 / gamma);
        } else {
            picture_.colorTag = notes_.colorTag;
        }
    }

    const uchar* interlacedLine()
    {
        const size_t rowBytes = png_get_rowbytes(png_, info_);
        if (y_ == 0) {
            whole_.resize(rowBytes * size_t(picture_.size.height()), 0x80);
            std::vector<png_bytep> lines;
            for (size_t y = 0; y < size_t(picture_.size.height()); ++y)
                lines.push_back(whole_.data() + y * rowBytes);
            png_bytep* first = lines.data();
            isDamaged_ = !guarded([this, first] {
                png_read_image(png_, first);
                png_read_end(png_, nullptr);
            });
        }
        return whole_.data() + rowBytes * size_t(y_);
    }

    void take(const uchar* line, uchar* row) const
    {
        const int width = picture_.size.width();
        const int channels = channelsOf(picture_.format);
        if (!hasAlpha_)
            std::memcpy(row, line, size_t(picture_.rowBytes()));
        else if (isDeep_)
            layOnWhite(reinterpret_cast<const quint16*>(line), reinterpret_cast<quint16*>(row), width,
                       channels);
        else
            layOnWhite(line, row, width, channels);
    }

    FileBytes bytes_;
    ExifNotes notes_;
    size_t place_ = 0;
    png_structp png_ = nullptr;
    png_infop info_ = nullptr;
    std::jmp_buf onError_ = {};
    bool isDeep_ = false;
    bool hasAlpha_ = false;
    bool isInterlaced_ = false;
    bool isDamaged_ = false;
    int y_ = 0;
    std::vector<uchar> line_;
    std::vector<uchar> whole_;
};

class PngReader : public PhotoReader {
public:
    PngReader(FileBytes bytes, const ExifNotes& notes) : bytes_(bytes), notes_(notes) {}

    QString kind() const override { return QStringLiteral("PNG"); }

    std::unique_ptr<PictureSource> open(const ReadRequest&) override
    {
        return std::make_unique<PngSource>(bytes_, notes_);
    }

private:
    FileBytes bytes_;
    ExifNotes notes_;
};

} // namespace

std::unique_ptr<PhotoReader> makePngReader(FileBytes bytes, const ExifNotes& notes)
{
    return std::make_unique<PngReader>(bytes, notes);
}

} // namespace halvern
