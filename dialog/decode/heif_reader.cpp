// SPDX-License-Identifier: MIT
#include "dialog/decode/made_profile.h"
#include "dialog/decode/packed_data.h"
#include "dialog/decode/readers.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>

#include <libheif/heif.h>

namespace halvern {

namespace {

constexpr int kMostEdge = 65535;
constexpr int kThreads = 2;

struct HeifDeleters {
    void operator()(heif_context* context) const { heif_context_free(context); }

    void operator()(heif_image_handle* handle) const { heif_image_handle_release(handle); }

    void operator()(heif_image* image) const { heif_image_release(image); }

    void operator()(heif_decoding_options* options) const { heif_decoding_options_free(options); }

    void operator()(heif_color_profile_nclx* profile) const { heif_nclx_color_profile_free(profile); }
};

template <typename T> using Held = std::unique_ptr<T, HeifDeleters>;

// Throws what an error of the library means.
void check(const heif_error& error)
{
    switch (error.code) {
    case heif_error_Ok:
        return;
    case heif_error_Memory_allocation_error:
        throw Unreadable{PhotoFault::tooLarge};
    case heif_error_Unsupported_filetype:
    case heif_error_Unsupported_feature:
    case heif_error_Color_profile_does_not_exist:
        throw Unreadable{PhotoFault::unsupported};
    default:
        throw Unreadable{PhotoFault::damaged};
    }
}

// Null where the file says nothing that helps.
const Primaries* primariesOf(heif_color_primaries primaries)
{
    switch (primaries) {
    case heif_color_primaries_ITU_R_BT_709_5:
        return &kSrgbPrimaries;
    case heif_color_primaries_SMPTE_EG_432_1:
        return &kDisplayP3Primaries;
    case heif_color_primaries_ITU_R_BT_2020_2_and_2100_0:
        return &kWidePrimaries;
    default:
        return nullptr;
    }
}

// 0 is sRGB's curve, by which screens show what was meant for television, too.
double gammaOf(heif_transfer_characteristics curve)
{
    switch (curve) {
    case heif_transfer_characteristic_ITU_R_BT_2100_0_PQ:
    case heif_transfer_characteristic_ITU_R_BT_2100_0_HLG:
        throw Unreadable{PhotoFault::highRange};
    case heif_transfer_characteristic_ITU_R_BT_470_6_System_M:
        return 2.2;
    case heif_transfer_characteristic_ITU_R_BT_470_6_System_B_G:
        return 2.8;
    case heif_transfer_characteristic_linear:
        return 1.0;
    default:
        return 0.0;
    }
}

/// A picture, turned as the file says: this format's own turn is the only one that counts.
class HeifSource : public PictureSource {
public:
    HeifSource(heif_context* context, heif_item_id id, bool isDamaged) : isDamaged_(isDamaged)
    {
        heif_image_handle* found = nullptr;
        check(heif_context_get_image_handle(context, id, &found));
        handle_.reset(found);
        const int width = heif_image_handle_get_width(found);
        const int height = heif_image_handle_get_height(found);
        checkSize(width, height);
        hasAlpha_ = heif_image_handle_has_alpha_channel(found);
        isPremultiplied_ = heif_image_handle_is_premultiplied_alpha(found);
        isDeep_ = heif_image_handle_get_luma_bits_per_pixel(found) > 8;
        picture_.size = picture_.fullSize = QSize(width, height);
        picture_.format = isDeep_ ? PixelFormat::rgb16 : PixelFormat::rgb8;
        takeProfile();
    }

    bool readRow(uchar* row) override
    {
        if (!image_ && !decode())
            return false;
        const uchar* line = pixels_ + size_t(stride_) * size_t(y_++);
        const int width = picture_.size.width();
        const int channels = hasAlpha_ ? 4 : 3;
        if (!isDeep_ && hasAlpha_) {
            layOnWhite(line, row, width, 3, isPremultiplied_);
        } else if (!isDeep_) {
            std::memcpy(row, line, size_t(width) * 3);
        } else {
            const auto* numbers = reinterpret_cast<const quint16*>(line);
            for (size_t i = 0; i < deep_.size(); ++i)
                deep_[i] = quint16(std::min<quint32>(numbers[i], most_) * 65535U / most_);
            auto* target = reinterpret_cast<quint16*>(row);
            if (channels == 4)
                layOnWhite(deep_.data(), target, width, 3, isPremultiplied_);
            else
                std::copy(deep_.begin(), deep_.end(), target);
        }
        return true;
    }

    bool isDamaged() const override { return isDamaged_; }

private:
    void takeProfile()
    {
        const heif_color_profile_type type = heif_image_handle_get_color_profile_type(handle_.get());
        if (type == heif_color_profile_type_rICC || type == heif_color_profile_type_prof) {
            picture_.profile.resize(qsizetype(heif_image_handle_get_raw_color_profile_size(handle_.get())));
            check(heif_image_handle_get_raw_color_profile(handle_.get(), picture_.profile.data()));
        }
        heif_color_profile_nclx* nclx = nullptr;
        const heif_error error = heif_image_handle_get_nclx_color_profile(handle_.get(), &nclx);
        const Held<heif_color_profile_nclx> held(nclx);
        if (!picture_.profile.isEmpty() || error.code != heif_error_Ok || !nclx)
            return;
        const double gamma = gammaOf(nclx->transfer_characteristics);
        const Primaries* primaries = primariesOf(nclx->color_primaries);
        if (primaries == &kSrgbPrimaries && gamma == 0.0)
            picture_.colorTag = ColorTag::sRgb;
        else if (primaries)
            picture_.profile = profileFor(*primaries, gamma);
    }

    bool decode()
    {
        const Held<heif_decoding_options> options(heif_decoding_options_alloc());
        heif_chroma chroma = hasAlpha_ ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB;
        if (isDeep_)
            chroma = hasAlpha_ ? heif_chroma_interleaved_RRGGBBAA_LE : heif_chroma_interleaved_RRGGBB_LE;
        heif_image* image = nullptr;
        check(heif_decode_image(handle_.get(), &image, heif_colorspace_RGB, chroma, options.get()));
        image_.reset(image);
        if (heif_image_get_width(image, heif_channel_interleaved) < picture_.size.width() ||
            heif_image_get_height(image, heif_channel_interleaved) < picture_.size.height())
            return false;
        pixels_ = heif_image_get_plane_readonly(image, heif_channel_interleaved, &stride_);
        const int bits = heif_image_get_bits_per_pixel_range(image, heif_channel_interleaved);
        most_ = (1U << std::clamp(bits, 8, 16)) - 1;
        deep_.resize(isDeep_ ? size_t(picture_.size.width()) * (hasAlpha_ ? 4 : 3) : 0);
        const size_t rowBytes = size_t(picture_.size.width()) * (hasAlpha_ ? 4 : 3) * (isDeep_ ? 2 : 1);
        return pixels_ && size_t(stride_) >= rowBytes;
    }

    Held<heif_image_handle> handle_;
    Held<heif_image> image_;
    const uchar* pixels_ = nullptr;
    int stride_ = 0;
    int y_ = 0;
    quint32 most_ = 255;
    bool isDamaged_;
    bool hasAlpha_ = false;
    bool isPremultiplied_ = false;
    bool isDeep_ = false;
    std::vector<quint16> deep_;
};

class HeifReader : public PhotoReader {
public:
    explicit HeifReader(FileBytes bytes) : context_(heif_context_alloc()), hasHole_(hasHeifHole(bytes))
    {
        isAvif_ = std::memcmp(bytes.data() + 8, "avi", 3) == 0;
        heif_context_set_maximum_image_size_limit(context_.get(), kMostEdge);
        heif_context_set_max_decoding_threads(context_.get(), kThreads);
        check(
            heif_context_read_from_memory_without_copy(context_.get(), bytes.data(), bytes.size(), nullptr));
        const int count = heif_context_get_number_of_top_level_images(context_.get());
        if (count < 1)
            throw Unreadable{PhotoFault::damaged};
        ids_.resize(size_t(count));
        heif_context_get_list_of_top_level_image_IDs(context_.get(), ids_.data(), count);
        // The one that the file means comes first.
        heif_item_id primary = 0;
        if (heif_context_get_primary_image_ID(context_.get(), &primary).code == heif_error_Ok)
            std::stable_partition(ids_.begin(), ids_.end(),
                                  [primary](heif_item_id id) { return id == primary; });
    }

    QString kind() const override { return isAvif_ ? QStringLiteral("AVIF") : QStringLiteral("HEIF"); }

    QList<qint32> pages() const override { return {ids_.begin(), ids_.end()}; }

    std::unique_ptr<PictureSource> open(const ReadRequest& request) override
    {
        return std::make_unique<HeifSource>(context_.get(), heif_item_id(request.page), hasHole_);
    }

private:
    Held<heif_context> context_;
    std::vector<heif_item_id> ids_;
    bool isAvif_ = false;
    bool hasHole_;
};

} // namespace

std::unique_ptr<PhotoReader> makeHeifReader(FileBytes bytes, const ExifNotes&)
{
    return std::make_unique<HeifReader>(bytes);
}

} // namespace halvern
