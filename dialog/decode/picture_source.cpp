// SPDX-License-Identifier: MIT
#include "dialog/decode/picture_source.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace halvern {

namespace {

class MissingIsGray : public PictureSource {
public:
    explicit MissingIsGray(std::unique_ptr<PictureSource> source) : source_(std::move(source))
    {
        picture_ = source_->picture();
        ownSize_ = source_->ownSize();
    }

    bool readRow(uchar* row) override
    {
        isCut_ = isCut_ || !source_->readRow(row);
        if (isCut_ && !hasRow_)
            return false;
        hasRow_ = true;
        if (isCut_)
            std::memset(row, 0x80, size_t(picture_.rowBytes()));
        return true;
    }

    bool isDamaged() const override { return isCut_ || source_->isDamaged(); }

private:
    std::unique_ptr<PictureSource> source_;
    bool isCut_ = false;
    bool hasRow_ = false;
};

class ScaledDown : public PictureSource {
public:
    ScaledDown(std::unique_ptr<PictureSource> source, int times) : source_(std::move(source)), times_(times)
    {
        picture_ = source_->picture();
        picture_.size =
            QSize(std::max(1, picture_.size.width() / times), std::max(1, picture_.size.height() / times));
        ownSize_ = source_->ownSize();
        row_.resize(size_t(source_->picture().rowBytes()) / sizeof(quint16) + 1);
        sums_.resize(size_t(picture_.size.width()) * size_t(channelsOf(picture_.format)));
    }

    bool readRow(uchar* row) override
    {
        const bool isDeep = bytesPerPixel(picture_.format) > channelsOf(picture_.format);
        std::fill(sums_.begin(), sums_.end(), 0);
        for (int i = 0; i < times_ && rowsRead_ < source_->picture().size.height(); ++i, ++rowsRead_) {
            if (!source_->readRow(reinterpret_cast<uchar*>(row_.data())))
                return false;
            if (isDeep)
                add(row_.data());
            else
                add(reinterpret_cast<const uchar*>(row_.data()));
        }
        if (isDeep)
            write(reinterpret_cast<quint16*>(row));
        else
            write(row);
        skipRest();
        return true;
    }

    bool isDamaged() const override { return source_->isDamaged(); }

private:
    // The rows that make no whole one are looked at all the same: they may be missing.
    void skipRest()
    {
        if (++rowsWritten_ < picture_.size.height())
            return;
        for (; rowsRead_ < source_->picture().size.height(); ++rowsRead_) {
            if (!source_->readRow(reinterpret_cast<uchar*>(row_.data())))
                return;
        }
    }

    template <typename Number> void add(const Number* numbers)
    {
        const int channels = channelsOf(picture_.format);
        quint64* sum = sums_.data();
        const int across = std::min(times_, source_->picture().size.width());
        for (int x = 0; x < picture_.size.width(); ++x, sum += channels) {
            for (int i = 0; i < across; ++i) {
                for (int c = 0; c < channels; ++c)
                    sum[c] += *numbers++;
            }
        }
    }

    template <typename Number> void write(Number* numbers) const
    {
        const auto across = quint64(std::min(times_, source_->picture().size.width()));
        const auto down = quint64(std::min(times_, source_->picture().size.height()));
        const quint64 count = across * down;
        for (const quint64 sum : sums_)
            *numbers++ = Number((sum + count / 2) / count);
    }

    std::unique_ptr<PictureSource> source_;
    int times_;
    int rowsRead_ = 0;
    int rowsWritten_ = 0;
    std::vector<quint16> row_;
    std::vector<quint64> sums_;
};

} // namespace

void checkSize(qint64 width, qint64 height)
{
    if (width <= 0 || height <= 0)
        throw Unreadable{PhotoFault::damaged};
    if (width > kMostPixels || height > kMostPixels || width * height > kMostPixels)
        throw Unreadable{PhotoFault::tooLarge};
}

std::unique_ptr<PictureSource> withGrayForMissing(std::unique_ptr<PictureSource> source)
{
    return std::make_unique<MissingIsGray>(std::move(source));
}

std::unique_ptr<PictureSource> scaledDown(std::unique_ptr<PictureSource> source, int leastEdge)
{
    const QSize size = source->picture().size;
    const int times = leastEdge > 0 ? std::max(size.width(), size.height()) / leastEdge : 1;
    if (times < 2)
        return source;
    return std::make_unique<ScaledDown>(std::move(source), times);
}

} // namespace halvern
