// SPDX-License-Identifier: MIT
#include "dialog/decode/jpeg_decoder.h"

#include <algorithm>
#include <csetjmp>
#include <cstdio>
#include <cstdlib>
#include <type_traits>

#include <jpeglib.h>

#include <jerror.h>

namespace halvern {

namespace {

constexpr int kExifMarker = JPEG_APP0 + 1;
constexpr int kProfileMarker = JPEG_APP0 + 2;
constexpr int kMostScans = 500;    // a progressive file of a camera has about ten
constexpr int kHarmlessStray = 64; // bytes between two markers; some cameras pad
constexpr int kEighths = 8;

double dotsPerInch(const jpeg_decompress_struct& info)
{
    if (info.density_unit == 2)
        return info.X_density * kCentimetresPerInch;
    return info.density_unit == 1 ? info.X_density : 0.0;
}

// What a call that was given up says of the file.
PhotoFault faultOf(int error)
{
    switch (error) {
    case JERR_OUT_OF_MEMORY:
    case JERR_IMAGE_TOO_BIG:
    case JERR_WIDTH_OVERFLOW:
        return PhotoFault::tooLarge;
    case JERR_BAD_PRECISION:
    case JERR_SOF_UNSUPPORTED:
    case JERR_ARITH_NOTIMPL:
    case JERR_CONVERSION_NOTIMPL:
    case JERR_COMPONENT_COUNT:
    case JERR_CCIR601_NOTIMPL:
    case JERR_FRACT_SAMPLE_NOTIMPL:
    case JERR_NOT_COMPILED:
        return PhotoFault::unsupported;
    default:
        return PhotoFault::damaged;
    }
}

} // namespace

struct JpegDecoder::State {
    jpeg_decompress_struct info = {};
    jpeg_error_mgr errors = {};
    jpeg_progress_mgr progress = {};
    std::jmp_buf onError = {};
    bool isDamaged = false;
    const uchar* begin = nullptr; // of the file

    static State& of(j_common_ptr info) { return *static_cast<State*>(info->client_data); }

    // libjpeg leaves a failed call by longjmp, which may skip no destructor: a step calls libjpeg and owns
    // nothing.
    template <typename Step> bool guarded(Step step)
    {
        static_assert(std::is_trivially_destructible_v<Step>);
        if (setjmp(onError))
            return false;
        step();
        return true;
    }

    static void leave(j_common_ptr info) { std::longjmp(of(info).onError, 1); }

    static void takeMessage(j_common_ptr info, int level)
    {
        if (level < 0)
            of(info).takeWarning(info->err->msg_code, info->err->msg_parm.i[0]);
    }

    static void limitScans(j_common_ptr info)
    {
        if (of(info).info.input_scan_number > kMostScans)
            leave(info);
    }

    // Whether the bytes that were passed over are nothing: data that are left over say that others are wrong.
    bool isPadding(int count) const
    {
        const JOCTET* end = info.src->next_input_byte;
        return count <= std::min<qint64>(kHarmlessStray, end - begin) &&
               std::all_of(end - count, end, [](JOCTET byte) { return byte == 0 || byte == 0xFF; });
    }

    void takeWarning(int code, int number)
    {
        switch (code) {
        case JWRN_HIT_MARKER:
        case JWRN_HUFF_BAD_CODE:
        case JWRN_ARITH_BAD_CODE:
        case JWRN_MUST_RESYNC:
        case JWRN_BOGUS_PROGRESSION:
            isDamaged = true;
            break;
        case JWRN_JPEG_EOF: // harmless where all has been decoded and only the end's marker is missing
            isDamaged = isDamaged || info.progressive_mode || info.comps_in_scan < info.num_components;
            break;
        case JWRN_EXTRANEOUS_DATA:
            isDamaged = isDamaged || (info.input_scan_number > 0 && !isPadding(number));
            break;
        default:
            break;
        }
    }
};

JpegDecoder::JpegDecoder(FileBytes bytes) : bytes_(bytes), state_(std::make_unique<State>())
{
    jpeg_decompress_struct& info = state_->info;
    info.err = jpeg_std_error(&state_->errors);
    info.client_data = state_.get();
    state_->begin = bytes_.data();
    state_->errors.error_exit = &State::leave;
    state_->errors.emit_message = &State::takeMessage;
    state_->errors.output_message = [](j_common_ptr) {};
    state_->progress.progress_monitor = &State::limitScans;
    const bool isRead = state_->guarded([&info, this] {
        jpeg_create_decompress(&info);
        info.progress = &state_->progress;
        jpeg_mem_src(&info, bytes_.data(), bytes_.size());
        jpeg_save_markers(&info, kExifMarker, 0xFFFF);
        jpeg_save_markers(&info, kProfileMarker, 0xFFFF);
        jpeg_read_header(&info, TRUE);
    });
    if (isRead)
        header_ = describe();
}

JpegDecoder::~JpegDecoder()
{
    jpeg_destroy_decompress(&state_->info);
}

JpegHeader JpegDecoder::describe()
{
    jpeg_decompress_struct& info = state_->info;
    JpegHeader header;
    header.size = QSize(int(info.image_width), int(info.image_height));
    header.components = info.num_components;
    header.dotsPerInch = dotsPerInch(info);
    header.isInverted = info.saw_Adobe_marker;
    for (const jpeg_marker_struct* marker = info.marker_list; marker; marker = marker->next) {
        const auto body = QByteArray::fromRawData(reinterpret_cast<const char*>(marker->data),
                                                  qsizetype(marker->data_length));
        const QByteArray exif("Exif\0\0", 6);
        if (marker->marker == kExifMarker && body.startsWith(exif)) {
            header.notes = readExifNotes(body.mid(exif.size()));
            break;
        }
    }
    JOCTET* profile = nullptr;
    unsigned int length = 0;
    const bool isRead = state_->guarded([&] { jpeg_read_icc_profile(&info, &profile, &length); });
    if (isRead && profile)
        header.profile = QByteArray(reinterpret_cast<const char*>(profile), length);
    std::free(profile);
    return header;
}

QSize JpegDecoder::sizeFor(int leastEdge)
{
    jpeg_decompress_struct& info = state_->info;
    const int edge = std::max(header_->size.width(), header_->size.height());
    int eighths = kEighths;
    while (leastEdge > 0 && eighths > 1 && edge * (eighths / 2) / kEighths >= leastEdge)
        eighths /= 2;
    info.scale_num = static_cast<unsigned int>(eighths);
    info.scale_denom = kEighths;
    if (!state_->guarded([&info] { jpeg_calc_output_dimensions(&info); }))
        return {};
    return {int(info.output_width), int(info.output_height)};
}

bool JpegDecoder::start()
{
    jpeg_decompress_struct& info = state_->info;
    info.out_color_space = info.num_components == 4   ? JCS_CMYK
                           : info.num_components == 1 ? JCS_GRAYSCALE
                                                      : JCS_RGB;
    return state_->guarded([&info] { jpeg_start_decompress(&info); });
}

bool JpegDecoder::readRow(uchar* row)
{
    jpeg_decompress_struct& info = state_->info;
    JSAMPROW target = row;
    if (!state_->guarded([&info, &target] { jpeg_read_scanlines(&info, &target, 1); }))
        return false;
    if (info.num_components == 4 && header_->isInverted)
        std::transform(row, row + size_t(info.output_width) * 4, row, [](uchar ink) { return 255 - ink; });
    if (info.output_scanline == info.output_height)
        state_->guarded([&info] { jpeg_finish_decompress(&info); });
    return true;
}

PhotoFault JpegDecoder::fault() const
{
    return faultOf(state_->errors.msg_code);
}

bool JpegDecoder::isDamaged() const
{
    return state_->isDamaged;
}

} // namespace halvern
