// SPDX-License-Identifier: MIT
#include "dialog/decode/packed_data.h"
#include "dialog/decode/readers.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>

#include <webp/decode.h>
#include <webp/demux.h>

namespace halvern {

namespace {

// Whether a picture's packed pixels were not copied whole: the library draws the rest as it comes.
// Transparency may be there as plain numbers, zeros among them.
bool hasWebpHole(FileBytes file, size_t at, size_t end)
{
    constexpr size_t kHead = 8;
    constexpr int kMethod = 3; // of packing
    while (end - at > kHead) {
        const uchar* chunk = file.data() + at;
        const bool isPlain = std::memcmp(chunk, "ALPH", 4) == 0 && (chunk[kHead] & kMethod) == 0;
        const size_t size = std::min<size_t>(qFromLittleEndian<quint32>(chunk + 4), end - at - kHead);
        if (!isPlain && hasLostSector(file, at + kHead, at + kHead + size))
            return true;
        at = std::min(at + kHead + size + size % 2, end);
    }
    return false;
}

struct DeleteDemuxer {
    void operator()(WebPDemuxer* demuxer) const { WebPDemuxDelete(demuxer); }
};

/// The picture, or the first one of a moving one.
class WebpSource : public PictureSource {
public:
    WebpSource(FileBytes bytes, const ExifNotes& notes, int leastEdge)
    {
        const WebPData data{bytes.data(), bytes.size()};
        WebPDemuxState state = WEBP_DEMUX_PARSE_ERROR;
        const std::unique_ptr<WebPDemuxer, DeleteDemuxer> demuxer(WebPDemuxPartial(&data, &state));
        WebPIterator frame{};
        if (!demuxer || state < WEBP_DEMUX_PARSED_HEADER || !WebPDemuxGetFrame(demuxer.get(), 1, &frame))
            throw Unreadable{PhotoFault::damaged};
        isDamaged_ = state != WEBP_DEMUX_DONE || !frame.complete;
        if (WebPChunkIterator chunk{}; WebPDemuxGetChunk(demuxer.get(), "ICCP", 1, &chunk)) {
            picture_.profile =
                QByteArray(reinterpret_cast<const char*>(chunk.chunk.bytes), qsizetype(chunk.chunk.size));
            WebPDemuxReleaseChunkIterator(&chunk);
        }
        const WebPData pixels = frame.fragment;
        const auto at = size_t(pixels.bytes - bytes.data());
        isDamaged_ = isDamaged_ || hasWebpHole(bytes, at, at + pixels.size);
        WebPDemuxReleaseIterator(&frame);
        decode(pixels, leastEdge);
        picture_.orientation = notes.orientation;
        picture_.colorTag = notes.colorTag;
    }

    bool readRow(uchar* row) override
    {
        const size_t channels = hasAlpha_ ? 4 : 3;
        const auto width = size_t(picture_.size.width());
        if (y_ >= rowsThere_)
            return false;
        const uchar* line = pixels_.data() + width * channels * size_t(y_++);
        if (hasAlpha_)
            layOnWhite(line, row, picture_.size.width(), 3);
        else
            std::memcpy(row, line, width * channels);
        return true;
    }

    bool isDamaged() const override { return isDamaged_; }

private:
    void decode(const WebPData& data, int leastEdge)
    {
        WebPDecoderConfig config;
        if (!WebPInitDecoderConfig(&config) ||
            WebPGetFeatures(data.bytes, data.size, &config.input) != VP8_STATUS_OK)
            throw Unreadable{PhotoFault::damaged};
        checkSize(config.input.width, config.input.height);
        picture_.fullSize = QSize(config.input.width, config.input.height);
        picture_.size = picture_.fullSize;
        const int times = leastEdge > 0 ? std::max(config.input.width, config.input.height) / leastEdge : 1;
        if (times > 1) {
            picture_.size =
                QSize(std::max(1, config.input.width / times), std::max(1, config.input.height / times));
            config.options.use_scaling = 1;
            config.options.scaled_width = picture_.size.width();
            config.options.scaled_height = picture_.size.height();
        }
        hasAlpha_ = config.input.has_alpha;
        const size_t rowBytes = size_t(picture_.size.width()) * (hasAlpha_ ? 4 : 3);
        pixels_.resize(rowBytes * size_t(picture_.size.height()));
        config.output.colorspace = hasAlpha_ ? MODE_RGBA : MODE_RGB;
        config.output.is_external_memory = 1;
        config.output.u.RGBA.rgba = pixels_.data();
        config.output.u.RGBA.stride = int(rowBytes);
        config.output.u.RGBA.size = pixels_.size();
        readAsFarAsItGoes(data, config);
    }

    void readAsFarAsItGoes(const WebPData& data, WebPDecoderConfig& config)
    {
        const std::unique_ptr<WebPIDecoder, void (*)(WebPIDecoder*)> decoder(WebPIDecode(nullptr, 0, &config),
                                                                             WebPIDelete);
        if (!decoder)
            throw Unreadable{PhotoFault::tooLarge};
        const VP8StatusCode status = WebPIUpdate(decoder.get(), data.bytes, data.size);
        rowsThere_ = picture_.size.height();
        if (status == VP8_STATUS_OK)
            return;
        rowsThere_ = 0;
        WebPIDecGetRGB(decoder.get(), &rowsThere_, nullptr, nullptr, nullptr);
        isDamaged_ = true;
        if (rowsThere_ < 1)
            throw Unreadable{PhotoFault::damaged};
    }

    bool hasAlpha_ = false;
    bool isDamaged_ = false;
    int rowsThere_ = 0;
    int y_ = 0;
    std::vector<uchar> pixels_;
};

class WebpReader : public PhotoReader {
public:
    WebpReader(FileBytes bytes, const ExifNotes& notes) : bytes_(bytes), notes_(notes) {}

    QString kind() const override { return QStringLiteral("WebP"); }

    std::unique_ptr<PictureSource> open(const ReadRequest& request) override
    {
        return std::make_unique<WebpSource>(bytes_, notes_, request.leastEdge);
    }

private:
    FileBytes bytes_;
    ExifNotes notes_;
};

} // namespace

std::unique_ptr<PhotoReader> makeWebpReader(FileBytes bytes, const ExifNotes& notes)
{
    return std::make_unique<WebpReader>(bytes, notes);
}

} // namespace halvern
