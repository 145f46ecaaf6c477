// SPDX-License-Identifier: MIT
#include "dialog/page/jpeg_scan.h"

#include <algorithm>
#include <cstring>

namespace halvern {

namespace {

constexpr qint64 kPiece = 256 * 1024;
constexpr qint64 kMostHead = 64 * 1024 * 1024; // previews and profiles stand there
constexpr qint64 kHole = 512;                  // bytes: a sector of a disk or a card
constexpr int kRestarts = 8;

constexpr int kPadding = 0xFF;
constexpr int kStuffing = 0x00;
constexpr int kFirstRestart = 0xD0;
constexpr int kLastRestart = 0xD7;
constexpr int kStartOfImage = 0xD8;
constexpr int kEndOfImage = 0xD9;
constexpr int kStartOfScan = 0xDA;
constexpr int kFirstSegment = 0xC0;
constexpr int kNone = -1;

bool isRestart(int marker)
{
    return marker >= kFirstRestart && marker <= kLastRestart;
}

bool hasHole(const char* bytes, qint64 count)
{
    // Each run of that length covers one of these places.
    for (qint64 i = kHole / 2; i < count; i += kHole / 2) {
        if (bytes[i] != 0)
            continue;
        qint64 first = i;
        while (first > 0 && bytes[first - 1] == 0)
            --first;
        qint64 end = i;
        while (end < count && bytes[end] == 0)
            ++end;
        if (end - first >= kHole)
            return true;
    }
    return false;
}

// Reads a file's bytes in order, and keeps those that it is told to keep.
class Walker {
public:
    explicit Walker(QIODevice& file) : file_(file) { file_.seek(0); }

    // The next byte; kNone at the end.
    int next()
    {
        if (at_ == piece_.size() && !refill())
            return kNone;
        return uchar(piece_[at_++]);
    }

    int nextPair()
    {
        const int high = next();
        const int low = next();
        return high == kNone || low == kNone ? kNone : high * 256 + low;
    }

    bool skip(qint64 count)
    {
        while (count > 0) {
            if (at_ == piece_.size() && !refill())
                return false;
            const qint64 here = std::min(count, qint64(piece_.size()) - at_);
            at_ += here;
            count -= here;
        }
        return true;
    }

    // The marker that follows at once; kNone if something else does.
    int marker()
    {
        if (next() != kPadding)
            return kNone;
        int marker = kPadding;
        while (marker == kPadding)
            marker = next();
        return marker;
    }

    // Goes through a scan's packed data to the marker behind them; kNone if something is wrong with them.
    int throughScan()
    {
        int restart = 0;
        for (;;) {
            if (!toPadding())
                return kNone;
            int marker = kPadding;
            while (marker == kPadding)
                marker = next();
            if (marker == kStuffing)
                continue;
            if (!isRestart(marker))
                return marker;
            if (marker != kFirstRestart + restart)
                return kNone;
            restart = (restart + 1) % kRestarts;
        }
    }

    qint64 position() const { return before_ + at_; }

private:
    bool refill()
    {
        before_ += piece_.size();
        piece_ = file_.read(kPiece);
        at_ = 0;
        return !piece_.isEmpty();
    }

    // Behind the next byte of 255.
    bool toPadding()
    {
        for (;;) {
            const char* from = piece_.constData() + at_;
            const qint64 left = piece_.size() - at_;
            const void* found = left > 0 ? std::memchr(from, kPadding, size_t(left)) : nullptr;
            const qint64 span = found ? static_cast<const char*>(found) - from : left;
            if (hasHole(from, span))
                return false;
            at_ += found ? span + 1 : span;
            if (found)
                return true;
            if (!refill())
                return false;
        }
    }

    QIODevice& file_;
    QByteArray piece_;
    qint64 at_ = 0;
    qint64 before_ = 0;
};

// Goes on to the end of the next scan's header; false if there is none.
bool toScan(Walker& walker, int marker)
{
    for (;; marker = walker.marker()) {
        // Also where the end comes first, or no marker does.
        if (marker < kFirstSegment || isRestart(marker) || marker == kStartOfImage || marker == kEndOfImage)
            return false;
        const int length = walker.nextPair();
        if (length < 2 || !walker.skip(length - 2))
            return false;
        if (marker == kStartOfScan)
            return true;
    }
}

} // namespace

QByteArray readJpegHead(QIODevice& file)
{
    Walker walker(file);
    if (walker.marker() != kStartOfImage || !toScan(walker, walker.marker()))
        return {};
    const qint64 length = walker.position();
    return length <= kMostHead && file.seek(0) ? file.read(length) : QByteArray();
}

bool isJpegInOrder(QIODevice& file)
{
    Walker walker(file);
    if (walker.marker() != kStartOfImage)
        return false;
    int marker = walker.marker();
    bool hasScan = false;
    while (marker != kEndOfImage) {
        if (!toScan(walker, marker))
            return false;
        hasScan = true;
        marker = walker.throughScan();
    }
    return hasScan;
}

} // namespace halvern
