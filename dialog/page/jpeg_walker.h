// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QIODevice>

#include <algorithm>
#include <span>

namespace halvern {

/// Reads a JPEG file's bytes in order, a piece of it in memory. One thread at a time.
class JpegWalker {
public:
    static constexpr int kNone = -1;

    explicit JpegWalker(QIODevice& file) : file_(file) { file_.seek(0); }

    /// The next byte; kNone at the end.
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

    /// The next bytes; fewer at the end.
    QByteArray read(qint64 count)
    {
        QByteArray bytes;
        while (bytes.size() < count && (at_ < piece_.size() || refill())) {
            const qint64 here = std::min(count - bytes.size(), qint64(piece_.size()) - at_);
            bytes.append(piece_.constData() + at_, here);
            at_ += here;
        }
        return bytes;
    }

    /// The next bytes, at most so many, to be taken with advance(); empty at the end only.
    std::span<const uchar> rest(size_t most)
    {
        if (at_ == piece_.size() && !refill())
            return {};
        const auto* bytes = reinterpret_cast<const uchar*>(piece_.constData()) + at_;
        return {bytes, std::min(most, size_t(piece_.size() - at_))};
    }

    void advance(qint64 count) { at_ += count; }

    /// The marker that follows at once; kNone if something else does.
    int marker()
    {
        constexpr int kPadding = 0xFF;
        if (next() != kPadding)
            return kNone;
        int marker = kPadding;
        while (marker == kPadding)
            marker = next();
        return marker;
    }

    qint64 position() const { return before_ + at_; }

private:
    bool refill()
    {
        constexpr qint64 kPiece = 256 * 1024;
        before_ += piece_.size();
        piece_ = file_.read(kPiece);
        at_ = 0;
        return !piece_.isEmpty();
    }

    QIODevice& file_;
    QByteArray piece_;
    qint64 at_ = 0;
    qint64 before_ = 0;
};

} // namespace halvern
