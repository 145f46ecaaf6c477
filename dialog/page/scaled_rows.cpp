// SPDX-License-Identifier: MIT
#include "dialog/page/scaled_rows.h"

#include <algorithm>
#include <cmath>

namespace halvern {

namespace {

bool isDeep(PixelFormat format)
{
    return bytesPerPixel(format) > channelsOf(format);
}

template <class Number> void addNumbers(std::vector<float>& sums, const uchar* row, float weight)
{
    const auto* numbers = reinterpret_cast<const Number*>(row);
    for (size_t i = 0; i < sums.size(); ++i)
        sums[i] += float(numbers[i]) * weight;
}

template <class Number> void writeNumbers(const std::vector<float>& means, uchar* target)
{
    auto* numbers = reinterpret_cast<Number*>(target);
    for (size_t i = 0; i < means.size(); ++i)
        numbers[i] = Number(means[i] + 0.5F);
}

} // namespace

ScaledRows::ScaledRows(std::unique_ptr<PictureRows> rows, const QSize& size)
    : rows_(std::move(rows)), picture_(rows_->picture()), given_(picture_.size)
{
    row_.resize(size_t(picture_.rowBytes()));
    picture_.size = size;
    const auto channels = size_t(channelsOf(picture_.format));
    sums_.resize(size_t(given_.width()) * channels);
    means_.resize(size_t(size.width()) * channels);
}

bool ScaledRows::readRow()
{
    if (rowsRead_ == given_.height() || rows_->read(row_.data(), 1) != 1)
        return false;
    ++rowsRead_;
    return true;
}

void ScaledRows::add(double weight)
{
    if (isDeep(picture_.format))
        addNumbers<quint16>(sums_, row_.data(), float(weight));
    else
        addNumbers<uchar>(sums_, row_.data(), float(weight));
}

void ScaledRows::writeRow(uchar* target)
{
    const auto channels = size_t(channelsOf(picture_.format));
    const double step = double(given_.width()) / picture_.size.width();
    const double area = step * given_.height() / picture_.size.height();
    for (int x = 0; x < picture_.size.width(); ++x) {
        const double left = x * step;
        const double right = std::min(left + step, double(given_.width()));
        for (size_t c = 0; c < channels; ++c) {
            double sum = 0.0;
            for (int from = int(left); from < right; ++from)
                sum += double(sums_[size_t(from) * channels + c]) *
                       (std::min(right, from + 1.0) - std::max(left, double(from)));
            means_[size_t(x) * channels + c] = float(sum / area);
        }
    }
    if (isDeep(picture_.format))
        writeNumbers<quint16>(means_, target);
    else
        writeNumbers<uchar>(means_, target);
}

int ScaledRows::read(uchar* rows, int count)
{
    const double step = double(given_.height()) / picture_.size.height();
    for (int done = 0; done < count; ++done) {
        if (rowsWritten_ == picture_.size.height())
            return done;
        const double top = rowsWritten_ * step;
        const double bottom = std::min(top + step, double(given_.height()));
        std::ranges::fill(sums_, 0.0F);
        for (int y = int(top); y < bottom; ++y) {
            // The row at the upper edge is there already if the row above took a part of it, too.
            if (y == rowsRead_ && !readRow())
                return done;
            add(std::min(bottom, y + 1.0) - std::max(top, double(y)));
        }
        writeRow(rows + done * picture_.rowBytes());
        ++rowsWritten_;
    }
    return count;
}

} // namespace halvern
