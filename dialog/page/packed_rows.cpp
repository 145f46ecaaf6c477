// SPDX-License-Identifier: MIT
#include "dialog/page/packed_rows.h"

#include <algorithm>
#include <limits>
#include <vector>

#define ZLIB_CONST // what is packed stays as it is
#include <zlib.h>

namespace halvern {

namespace {

constexpr size_t kPackedPiece = 64 * 1024;

} // namespace

struct PackedRows::State {
    z_stream stream = {};
    std::vector<Bytef> packed = std::vector<Bytef>(kPackedPiece);
    bool isOpen = false;
};

PackedRows::PackedRows(PdfFile& file) : file_(file), state_(std::make_unique<State>())
{
    // The job travels a socket, so speed counts.
    state_->isOpen = deflateInit(&state_->stream, Z_BEST_SPEED) == Z_OK;
}

PackedRows::~PackedRows()
{
    if (state_->isOpen)
        deflateEnd(&state_->stream);
}

bool PackedRows::pack(int flush)
{
    z_stream& stream = state_->stream;
    bool isFull = true;
    while (isFull) {
        stream.next_out = state_->packed.data();
        stream.avail_out = uInt(kPackedPiece);
        deflate(&stream, flush);
        isFull = stream.avail_out == 0;
        if (!file_.addToPicture(reinterpret_cast<const char*>(state_->packed.data()),
                                qsizetype(kPackedPiece - stream.avail_out)))
            return false;
    }
    return true;
}

bool PackedRows::add(const uchar* rows, qsizetype bytes)
{
    constexpr qsizetype most = std::numeric_limits<int>::max();
    bool isWritten = state_->isOpen;
    for (; isWritten && bytes > 0; bytes -= most, rows += most) {
        state_->stream.next_in = rows;
        state_->stream.avail_in = uInt(std::min(bytes, most));
        isWritten = pack(Z_NO_FLUSH);
    }
    return isWritten;
}

bool PackedRows::finish()
{
    state_->stream.avail_in = 0;
    return state_->isOpen && pack(Z_FINISH);
}

} // namespace halvern
