// SPDX-License-Identifier: MIT
#include "dialog/page/jpeg_packed.h"
#include "dialog/page/jpeg_markers.h"

#include <QtEndian>

#include <algorithm>
#include <utility>

namespace halvern {

namespace {

using namespace jpeg_marker;

constexpr int kNone = JpegWalker::kNone;
constexpr int kRestarts = 8;
constexpr int kWordBytes = 8;
constexpr int kEnough = 32; // bits: more than the longest step
constexpr int kPlaces = 64; // in a block
constexpr int kRoomForTwo = kPlaces - 17;
constexpr int kMostBits = 10; // of a number that 8 bits of colour give
constexpr int kMostFirstBits = 11;
constexpr int kMostMeaning = 15; // of a code for a block's first number: decoders refuse a table with more
constexpr int kHole = 480;       // bytes of zeros, nearly a sector of a disk or a card

// A meaning as a step without its code's length; 0 if no camera's file has it.
quint32 stepFor(JpegCodes::Kind kind, int meaning)
{
    const auto bits = quint32(meaning & 15);
    const auto zeros = quint32(meaning >> 4);
    if (kind == JpegCodes::Kind::first)
        return meaning <= kMostFirstBits ? 1U << JpegCodes::kBitsOfLength | bits : 0;
    if (bits > kMostBits || (bits == 0 && zeros != 0 && zeros != 15))
        return 0;
    const quint32 places = bits == 0 && zeros == 0 ? JpegCodes::kRestIsZero : zeros + 1;
    return places << JpegCodes::kBitsOfLength | bits;
}

bool hasPadding(quint64 word)
{
    constexpr quint64 kOnes = 0x0101010101010101U;
    return ((~word - kOnes) & word & (kOnes << 7)) != 0;
}

/// The bits of a scan's packed data.
class PackedBits {
public:
    explicit PackedBits(JpegWalker& walker) : walker_(walker) {}

    // Goes over one block; false if it cannot be right.
    bool skipBlock(const JpegCodes& first, const JpegCodes& others)
    {
        // Copies, which the compiler keeps in registers.
        quint64 bits = bits_;
        int count = count_;
        const auto take = [&](quint32 step) {
            const auto length = int(step & JpegCodes::kLengthMask);
            bits <<= length;
            count -= length;
            return int(step >> JpegCodes::kBitsOfLength);
        };
        const auto fill = [&] {
            if (count >= kEnough)
                return;
            bits_ = bits;
            count_ = count;
            refill();
            bits = bits_;
            count = count_;
        };
        fill();
        quint32 step = first.step(bits);
        int place = step != 0 ? take(step) : kPlaces;
        for (; step != 0 && place < kRoomForTwo; place += take(step)) {
            fill();
            step = others.twoSteps(bits);
        }
        for (; step != 0 && place < kPlaces; place += take(step)) {
            fill();
            step = others.step(bits);
        }
        bits_ = bits;
        count_ = count;
        const bool isFull = place == kPlaces || place >= int(JpegCodes::kRestIsZero);
        return step != 0 && isFull && count >= 0 && zeros_ < kHole;
    }

    // The marker that follows at once, behind the bits that fill a byte; kNone if something else does.
    int takeMarker()
    {
        if (count_ < kWordBytes)
            refill();
        if (count_ < 0 || count_ >= kWordBytes)
            return kNone;
        bits_ = 0;
        count_ = 0;
        return std::exchange(marker_, kNone);
    }

private:
    void refill()
    {
        const uchar* bytes = marker_ == kNone ? walker_.ahead(kWordBytes) : nullptr;
        const quint64 word = bytes ? qFromBigEndian<quint64>(bytes) : ~quint64(0);
        if (hasPadding(word)) {
            refillByBytes();
            return;
        }
        // Bits behind the last whole byte come in as well, and again next time.
        bits_ |= word >> count_;
        const int whole = (64 - count_) / 8;
        walker_.advance(whole);
        count_ += 8 * whole;
        zeros_ = word == 0 ? zeros_ + whole : 0;
    }

    void refillByBytes()
    {
        while (count_ <= 56 && marker_ == kNone) {
            const int byte = walker_.next();
            int behind = 0;
            if (byte == kPadding) {
                behind = walker_.next();
                while (behind == kPadding)
                    behind = walker_.next();
            }
            if (byte == kNone || behind != 0) {
                marker_ = byte == kNone || behind == kNone ? kEnd : behind;
                return;
            }
            bits_ |= quint64(byte) << (56 - count_);
            count_ += 8;
            zeros_ = byte == 0 ? zeros_ + 1 : 0;
        }
    }

    static constexpr int kEnd = 0; // no marker is that

    JpegWalker& walker_;
    quint64 bits_ = 0; // the next one is the highest
    int count_ = 0;    // of those that are there; less than 0 once some were taken that are not
    int marker_ = kNone;
    int zeros_ = 0; // bytes of them in a row
};

} // namespace

bool JpegCodes::define(Kind kind, const QByteArray& counts, const QByteArray& meanings)
{
    steps_.fill(0);
    stepOf_.clear();
    lastCode_.fill(-1);
    qint32 code = 0;
    for (int length = 1; length <= kLongestCode; ++length, code <<= 1) {
        firstCode_[size_t(length)] = code;
        place_[size_t(length)] = qint32(stepOf_.size()) - code;
        for (int i = uchar(counts[length - 1]); i > 0; --i, ++code) {
            if (qsizetype(stepOf_.size()) >= meanings.size() || code >= 1 << length)
                return false;
            const int meaning = uchar(meanings[qsizetype(stepOf_.size())]);
            if (kind == Kind::first && meaning > kMostMeaning)
                return false;
            const quint32 bare = stepFor(kind, meaning);
            const auto step = quint16(bare != 0 ? bare + quint32(length) : 0);
            stepOf_.push_back(step);
            lastCode_[size_t(length)] = code;
            if (length > kSeenBits)
                continue;
            const int spare = kSeenBits - length;
            std::fill_n(steps_.begin() + (code << spare), 1 << spare, step);
        }
    }
    pairUp();
    return true;
}

void JpegCodes::pairUp()
{
    for (quint32 seen = 0; seen < steps_.size(); ++seen) {
        const quint32 one = steps_[seen];
        const quint32 length = one & kLengthMask;
        twoSteps_[seen] = quint16(one);
        if (one == 0 || one >> kBitsOfLength >= kRestIsZero || length >= kSeenBits)
            continue;
        const quint32 rest = seen << length & ((1U << kSeenBits) - 1);
        const quint32 other = steps_[rest];
        // The other one's code has to be seen whole; the number that follows it need not.
        const bool isSeen =
            other != 0 && std::all_of(steps_.begin() + rest, steps_.begin() + rest + (1 << length),
                                      [other](quint16 step) { return step == other; });
        if (isSeen)
            twoSteps_[seen] = quint16(one + other);
    }
}

quint32 JpegCodes::longStep(quint64 bits) const
{
    for (int length = kSeenBits + 1; length <= kLongestCode; ++length) {
        const auto code = qint32(bits >> (64 - length));
        if (code >= firstCode_[size_t(length)] && code <= lastCode_[size_t(length)])
            return stepOf_[size_t(place_[size_t(length)] + code)];
    }
    return 0;
}

int markerBehindScan(JpegWalker& walker, const std::vector<JpegBlocks>& blocks, qint64 times, int interval)
{
    PackedBits bits(walker);
    int restart = 0;
    for (qint64 i = 0; i < times; ++i) {
        if (interval > 0 && i > 0 && i % interval == 0) {
            if (bits.takeMarker() != kFirstRestart + restart)
                return kNone;
            restart = (restart + 1) % kRestarts;
        }
        for (const JpegBlocks& part : blocks) {
            for (int block = 0; block < part.count; ++block) {
                if (!bits.skipBlock(*part.first, *part.others))
                    return kNone;
            }
        }
    }
    return bits.takeMarker();
}

} // namespace halvern
