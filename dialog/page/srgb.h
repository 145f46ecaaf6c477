// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>

#include <memory>

namespace halvern {

/// Whether pixels of this ICC profile are sRGB as they stand, to the last bit but one: no profile, one that
/// cannot be read, or one that says the same as sRGB. `isGray` tells what kind of pixels the profile is for;
/// one for another kind does not count. Any thread.
bool isSrgb(const QByteArray& profile, bool isGray);

/// The picture converted to sRGB, perceptually, from the ICC profile that goes with it; unchanged if isSrgb()
/// of it. A gray picture stays gray. Any thread.
QImage inSrgb(QImage image, const QByteArray& profile);

/// Converts rows of four inks, 8 bits each, to sRGB. One thread at a time.
class InkConverter {
public:
    /// Without a profile for four inks, the inks are taken as ideal ones. `isInverted`: 255 is no ink.
    InkConverter(const QByteArray& profile, bool isInverted);

    /// `rgb` has room for three bytes a pixel.
    void convert(const uchar* inks, uchar* rgb, int pixels) const;

private:
    std::shared_ptr<void> transform_;
    bool isInverted_;
};

} // namespace halvern
