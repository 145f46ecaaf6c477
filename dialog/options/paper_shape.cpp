// SPDX-License-Identifier: MIT
#include "dialog/options/paper_shape.h"

#include <cups/ppd.h>

#include <algorithm>

namespace halvern {

namespace {

constexpr double kNoMargin = 0.5; // points

} // namespace

QSizeF upright(const QSizeF& size)
{
    return {std::min(size.width(), size.height()), std::max(size.width(), size.height())};
}

bool isWithoutMargins(const ppd_size_s& size)
{
    return double(size.left) < kNoMargin && double(size.bottom) < kNoMargin &&
           double(size.width - size.right) < kNoMargin && double(size.length - size.top) < kNoMargin;
}

} // namespace halvern
