// SPDX-License-Identifier: MIT
#include "dialog/decode/packed_data.h"

#include "dialog/decode/jpeg_decoder.h"

#include <algorithm>
#include <cstring>
#include <string_view>
#include <vector>

#include <zlib.h>

namespace halvern {

namespace {

constexpr size_t kPiece = 64 * 1024;
constexpr size_t kMostAtOnce = 1U << 30;

// Where the wanted bytes begin; the end if they do not come.
size_t find(FileBytes data, size_t from, std::string_view wanted)
{
    if (from >= data.size())
        return data.size();
    const void* found = memmem(data.data() + from, data.size() - from, wanted.data(), wanted.size());
    return found ? size_t(static_cast<const uchar*>(found) - data.data()) : data.size();
}

bool isJpegDamaged(FileBytes data)
{
    JpegDecoder decoder(data);
    if (!decoder.header())
        return decoder.fault() == PhotoFault::damaged;
    const QSize size = decoder.sizeFor(0);
    if (size.isEmpty() || !decoder.start())
        return decoder.fault() == PhotoFault::damaged;
    // Unpacking all of them takes as long as drawing the pages.
    if (!hasHole(data))
        return decoder.isDamaged();
    std::vector<uchar> row(size_t(size.width()) * size_t(decoder.header()->components));
    for (int y = 0; y < size.height(); ++y) {
        if (!decoder.readRow(row.data()))
            return true;
    }
    return decoder.isDamaged();
}

bool isDeflated(FileBytes data)
{
    constexpr int kMethod = 8;
    return data.size() > 2 && (data[0] & 15) == kMethod && (data[0] * 256 + data[1]) % 31 == 0;
}

bool isStreamDamaged(FileBytes data)
{
    if (data.size() > 3 && data[0] == 0xFF && data[1] == 0xD8 && data[2] == 0xFF)
        return isJpegDamaged(data);
    return isDeflated(data) && hasHole(data) && !isDeflatedWhole(data);
}

} // namespace

bool hasHole(FileBytes data, size_t least)
{
    // A run that is long enough has a byte at one of these places.
    for (size_t at = least - 1; at < data.size(); at += least) {
        if (data[at] != 0)
            continue;
        size_t begin = at;
        while (begin > 0 && at - begin < least && data[begin - 1] == 0)
            --begin;
        size_t end = at + 1;
        while (end < data.size() && end - begin < least && data[end] == 0)
            ++end;
        if (end - begin >= least)
            return true;
    }
    return false;
}

bool hasLostSector(FileBytes file, size_t from, size_t to)
{
    constexpr size_t kSector = 512;
    constexpr size_t kByChance = 2; // zeros that were there beside the hole
    const auto isZero = [](uchar byte) { return byte == 0; };
    size_t begin = (from + kSector - 1) / kSector * kSector;
    while (begin + kSector <= to) {
        const auto first = file.begin() + std::ptrdiff_t(begin);
        const auto end =
            size_t(std::find_if_not(first, file.begin() + std::ptrdiff_t(to), isZero) - file.begin());
        const size_t before = std::min(begin - from, kByChance + 1);
        const bool beginsHere = before == 0 || !std::all_of(first - std::ptrdiff_t(before), first, isZero);
        if (end - begin >= kSector && beginsHere && (end == to || end % kSector <= kByChance))
            return true;
        begin = std::max(begin + kSector, end / kSector * kSector);
    }
    return false;
}

bool isDeflatedWhole(FileBytes data)
{
    z_stream stream = {};
    if (inflateInit(&stream) != Z_OK)
        return true;
    std::vector<uchar> piece(kPiece);
    int state = Z_OK;
    size_t given = 0;
    while (state == Z_OK) {
        if (stream.avail_in == 0) {
            const size_t next = std::min(data.size() - given, kMostAtOnce);
            stream.next_in = const_cast<uchar*>(data.data() + given);
            stream.avail_in = uInt(next);
            given += next;
        }
        stream.next_out = piece.data();
        stream.avail_out = uInt(piece.size());
        state = inflate(&stream, Z_NO_FLUSH);
    }
    inflateEnd(&stream);
    return state == Z_STREAM_END;
}

bool hasDamagedStream(FileBytes document)
{
    constexpr std::string_view kBegin = "stream";
    constexpr std::string_view kEnd = "endstream";
    for (size_t at = find(document, 0, kBegin); at < document.size();) {
        size_t begin = at + kBegin.size();
        if (begin < document.size() && document[begin] == '\r')
            ++begin;
        if (begin >= document.size() || document[begin] != '\n') {
            at = find(document, begin, kBegin);
            continue;
        }
        ++begin;
        const size_t end = find(document, begin, kEnd);
        if (isStreamDamaged(document.subspan(begin, end - begin)))
            return true;
        at = find(document, std::min(end + kEnd.size(), document.size()), kBegin);
    }
    return false;
}

} // namespace halvern
