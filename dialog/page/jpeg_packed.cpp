// SPDX-License-Identifier: MIT
#include "dialog/page/jpeg_packed.h"

#include "dialog/page/jpeg_markers.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <span>
#include <utility>

namespace halvern {

namespace {

using namespace jpeg_marker;

constexpr int kNone = JpegWalker::kNone;
constexpr int kRestarts = 8;
constexpr int kPlaces = 64; // in a block
constexpr int kRoomForTwo = kPlaces - 17;
constexpr int kMostBits = 10; // of a number that 8 bits of colour give
constexpr int kMostFirstBits = 11;
constexpr int kMostMeaning = 15; // of a code for a block's first number: decoders refuse a table with more
constexpr size_t kHole = 480;    // bytes of zeros, nearly a sector of a disk or a card

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

/// The bits of a scan's packed data. The bytes that stand for padding are taken out beforehand, so that going
/// over a block looks at nothing but its codes.
class PackedBits {
public:
    explicit PackedBits(JpegWalker& walker)
        : walker_(walker), plain_(kPiece + kMostOfBlock + kBehind), at_(plain_.data()), end_(at_)
    {
    }

    // Goes over one block; false if it cannot be right.
    bool skipBlock(const JpegCodes& first, const JpegCodes& others)
    {
        if (end_ - at_ < kMostOfBlock && marker_ == kNone)
            readOn();
        // Copies, which the compiler keeps in registers.
        const uchar* at = at_;
        quint64 bits = bits_;
        int count = count_;
        // Bits behind the last whole byte come in as well, and again next time. Enough for two steps.
        const auto refill = [&] {
            bits |= qFromBigEndian<quint64>(at) >> count;
            at += (63 - count) / 8;
            count |= 56;
        };
        const auto take = [&](quint32 step) {
            const auto length = int(step & JpegCodes::kLengthMask);
            bits <<= length;
            count -= length;
            return int(step >> JpegCodes::kBitsOfLength);
        };
        refill();
        quint32 step = first.step(bits);
        int place = step != 0 ? take(step) : kPlaces;
        while (step != 0 && place < kRoomForTwo) {
            refill();
            place += take(others.twoSteps(bits));
            if (place >= kRoomForTwo)
                break;
            step = others.twoSteps(bits);
            place += take(step);
        }
        while (step != 0 && place < kPlaces) {
            refill();
            step = others.step(bits);
            place += take(step);
        }
        at_ = at;
        bits_ = bits;
        count_ = count;
        const bool isFull = place == kPlaces || place >= int(JpegCodes::kRestIsZero);
        return step != 0 && isFull && bitsLeft() >= 0 && !hasHole_;
    }

    // The marker that follows at once, behind the bits that fill a byte; kNone if something else does.
    int takeMarker()
    {
        if (marker_ == kNone && end_ - at_ < kMostOfBlock)
            readOn();
        if (bitsLeft() < 0 || bitsLeft() >= 8)
            return kNone;
        bits_ = 0;
        count_ = 0;
        at_ = end_;
        return std::exchange(marker_, kNone);
    }

private:
    // Less than 0 once some were taken that are not there.
    qint64 bitsLeft() const { return qint64(end_ - at_) * 8 + count_; }

    void readOn()
    {
        uchar* end = std::copy(at_, end_, plain_.data());
        at_ = plain_.data();
        const uchar* const most = at_ + kPiece + kMostOfBlock;
        while (end != most && marker_ == kNone) {
            const std::span<const uchar> rest = walker_.rest(size_t(most - end));
            const void* found = rest.empty() ? nullptr : std::memchr(rest.data(), kPadding, rest.size());
            const auto* stop = found ? static_cast<const uchar*>(found) : rest.data() + rest.size();
            lookForHole(rest.first(size_t(stop - rest.data())));
            end = std::copy(rest.data(), stop, end);
            walker_.advance(stop - rest.data());
            if (found || rest.empty())
                end = takePadding(end);
        }
        end_ = end;
        std::fill_n(end, kBehind, uchar(0));
    }

    uchar* takePadding(uchar* end)
    {
        walker_.next();
        int behind = walker_.next();
        while (behind == kPadding)
            behind = walker_.next();
        if (behind == 0)
            *end++ = kPadding;
        else
            marker_ = behind == kNone ? kEnd : behind;
        return end;
    }

    // As many looks as hit a hole wherever it begins: what they take for one by chance, a decoder reads.
    void lookForHole(std::span<const uchar> bytes)
    {
        for (; nextLook_ < bytes.size(); nextLook_ += kHole / kLooks) {
            zeros_ = bytes[nextLook_] == 0 ? zeros_ + 1 : 0;
            hasHole_ = hasHole_ || zeros_ == kLooks;
        }
        nextLook_ -= bytes.size();
    }

    static constexpr int kEnd = 0; // no marker is that
    static constexpr int kPiece = 16 * 1024;
    static constexpr int kMostOfBlock = 256; // bytes: 64 of the longest steps, and what is seen ahead
    static constexpr int kBehind = 2 * kMostOfBlock;
    static constexpr int kLooks = 4;

    JpegWalker& walker_;
    std::vector<uchar> plain_; // without padding; zeros behind its end
    const uchar* at_;
    const uchar* end_;
    quint64 bits_ = 0;   // the next one is the highest
    int count_ = 0;      // of those that are there
    int marker_ = kNone; // behind the end
    size_t nextLook_ = 0;
    int zeros_ = 0; // looks at them in a row
    bool hasHole_ = false;
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
