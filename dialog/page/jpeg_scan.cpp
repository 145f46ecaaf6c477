// SPDX-License-Identifier: MIT
#include "dialog/page/jpeg_scan.h"

#include "dialog/page/jpeg_markers.h"
#include "dialog/page/jpeg_packed.h"

#include <QtEndian>

#include <memory>

namespace halvern {

namespace {

using namespace jpeg_marker;

constexpr qint64 kMostBeforeScan = 64 * 1024 * 1024; // previews and profiles stand there
constexpr int kBlock = 8;                            // pixels
constexpr int kMostComponents = 4;
constexpr int kMostJpegEdge = 65500; // of what decoders read
constexpr int kMostSampling = 4;
constexpr int kMostBlocks = 10; // of a scan's repeated part
constexpr int kTables = 4;
constexpr int kDivisors = 64; // in a table by which the numbers were divided
constexpr int kCounts = 16;

constexpr int kLastRestart = 0xD7;
constexpr int kStartOfImage = 0xD8;
constexpr int kEndOfImage = 0xD9;
constexpr int kStartOfScan = 0xDA;
constexpr int kDivisorTables = 0xDB;
constexpr int kRestartInterval = 0xDD;
constexpr int kFirstSegment = 0xC0;
constexpr int kFirstOfPrograms = 0xE0;
constexpr int kLastOfPrograms = 0xEF;
constexpr int kComment = 0xFE;

// Not where the end comes first, or no marker does.
bool isSegment(int marker)
{
    const bool isRestart = marker >= kFirstRestart && marker <= kLastRestart;
    return marker >= kFirstSegment && !isRestart && marker != kStartOfImage && marker != kEndOfImage;
}

struct Component {
    int name = 0;
    int across = 0; // blocks in what is repeated
    int down = 0;
    size_t divisors = 0; // the table's place
    bool isSeen = false;
};

int divided(int number, int by)
{
    return (number + by - 1) / by;
}

/// Goes through a file whose pixels are packed in the way that cameras use.
class PlainJpeg {
public:
    explicit PlainJpeg(QIODevice& file) : walker_(file) {}

    bool isInOrder()
    {
        if (walker_.marker() != kStartOfImage)
            return false;
        int marker = walker_.marker();
        while (marker != kEndOfImage) {
            const int length = isSegment(marker) ? walker_.nextPair() : 0;
            if (length < 2)
                return false;
            const QByteArray body = walker_.read(length - 2);
            if (body.size() != length - 2 || !take(marker, body))
                return false;
            marker = marker == kStartOfScan ? behind_ : walker_.marker();
        }
        return !components_.empty() && std::all_of(components_.begin(), components_.end(),
                                                   [](const Component& c) { return c.isSeen; });
    }

private:
    bool take(int marker, const QByteArray& body)
    {
        switch (marker) {
        case kBaseline:
        case kExtended:
            return takeFrame(body);
        case kHuffmanTables:
            return takeTables(body);
        case kDivisorTables:
            return takeDivisors(body);
        case kRestartInterval:
            interval_ = body.size() == 2 ? qFromBigEndian<quint16>(body.constData()) : 0;
            return body.size() == 2;
        case kStartOfScan:
            return takeScan(body);
        default: // decoders refuse what they do not know, too
            return marker == kComment || (marker >= kFirstOfPrograms && marker <= kLastOfPrograms);
        }
    }

    bool takeFrame(const QByteArray& body)
    {
        const int count = body.size() >= 6 ? uchar(body[5]) : 0;
        if (!components_.empty() || count < 1 || count > kMostComponents || body.size() != 6 + 3 * count ||
            body[0] != 8)
            return false;
        height_ = qFromBigEndian<quint16>(body.constData() + 1);
        width_ = qFromBigEndian<quint16>(body.constData() + 3);
        for (int i = 6; i < 6 + 3 * count; i += 3) {
            const Component component{uchar(body[i]), uchar(body[i + 1]) >> 4, uchar(body[i + 1]) & 15,
                                      uchar(body[i + 2])};
            if (component.across < 1 || component.across > kMostSampling || component.down < 1 ||
                component.down > kMostSampling || component.divisors >= kTables)
                return false;
            across_ = std::max(across_, component.across);
            down_ = std::max(down_, component.down);
            components_.push_back(component);
        }
        const bool isWholeMultiple = std::all_of(components_.begin(), components_.end(), [&](const auto& c) {
            return across_ % c.across == 0 && down_ % c.down == 0;
        });
        return isWholeMultiple && count != 2 && width_ > 0 && width_ <= kMostJpegEdge && height_ > 0 &&
               height_ <= kMostJpegEdge;
    }

    bool takeTables(const QByteArray& body)
    {
        for (qsizetype at = 0; at < body.size();) {
            const int name = uchar(body[at]);
            const QByteArray counts = body.mid(at + 1, kCounts);
            if ((name & 15) >= kTables || name >> 4 > 1 || counts.size() < kCounts)
                return false;
            qsizetype codes = 0;
            for (const char count : counts)
                codes += uchar(count);
            const auto kind = name >> 4 == 0 ? JpegCodes::Kind::first : JpegCodes::Kind::others;
            std::unique_ptr<JpegCodes>& table = tables_[size_t(name >> 4)][size_t(name & 15)];
            table = std::make_unique<JpegCodes>();
            if (!table->define(kind, counts, body.mid(at + 1 + kCounts, codes)))
                return false;
            at += 1 + kCounts + codes;
        }
        return true;
    }

    bool takeDivisors(const QByteArray& body)
    {
        qsizetype at = 0;
        while (at < body.size()) {
            const int name = uchar(body[at]);
            if ((name & 15) >= kTables || name >> 4 > 1)
                return false;
            hasDivisors_[size_t(name & 15)] = true;
            at += 1 + kDivisors * (1 + (name >> 4));
        }
        return at == body.size();
    }

    bool takeScan(const QByteArray& body)
    {
        const int count = body.isEmpty() ? 0 : uchar(body[0]);
        if (count < 1 || count > kMostComponents || body.size() != 4 + 2 * count ||
            !body.endsWith(QByteArray("\0\x3F\0", 3)))
            return false;
        std::vector<JpegBlocks> blocks;
        int all = 0;
        qint64 times = qint64(divided(width_, kBlock * across_)) * divided(height_, kBlock * down_);
        for (int i = 1; i < 1 + 2 * count; i += 2) {
            const auto found = std::find_if(components_.begin(), components_.end(), [&](const Component& c) {
                return c.name == uchar(body[i]) && !c.isSeen;
            });
            const size_t first = uchar(body[i + 1]) >> 4;
            const size_t others = uchar(body[i + 1]) & 15;
            if (found == components_.end() || first >= kTables || others >= kTables || !tables_[0][first] ||
                !tables_[1][others] || !hasDivisors_[found->divisors])
                return false;
            found->isSeen = true;
            int size = found->across * found->down;
            if (count == 1) {
                times = qint64(divided(divided(width_ * found->across, across_), kBlock)) *
                        divided(divided(height_ * found->down, down_), kBlock);
                size = 1;
            }
            all += size;
            blocks.push_back({tables_[0][first].get(), tables_[1][others].get(), size});
        }
        behind_ =
            all <= kMostBlocks ? markerBehindScan(walker_, blocks, times, interval_) : JpegWalker::kNone;
        return behind_ != JpegWalker::kNone;
    }

    JpegWalker walker_;
    std::vector<Component> components_;
    std::array<std::array<std::unique_ptr<JpegCodes>, kTables>, 2> tables_;
    std::array<bool, kTables> hasDivisors_{};
    int width_ = 0;
    int height_ = 0;
    int across_ = 1;
    int down_ = 1;
    int interval_ = 0;
    int behind_ = JpegWalker::kNone;
};

} // namespace

QByteArray readJpegHead(QIODevice& file)
{
    JpegWalker walker(file);
    if (walker.marker() != kStartOfImage)
        return {};
    for (int marker = kStartOfImage; marker != kStartOfScan;) {
        marker = walker.marker();
        const int length = isSegment(marker) ? walker.nextPair() : 0;
        if (length < 2 || !walker.skip(length - 2))
            return {};
    }
    const qint64 length = walker.position();
    return length <= kMostBeforeScan && file.seek(0) ? file.read(length) : QByteArray();
}

bool isJpegInOrder(QIODevice& file)
{
    return PlainJpeg(file).isInOrder();
}

} // namespace halvern
