// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace halvern {

/// A photo file that somebody may come with: whole, cut off, with bits flipped, or with absurd sizes.
struct BrokenPhoto {
    QString name;
    QByteArray bytes;
    bool isWhole = false;
    bool isCut = false; ///< a good part of it is gone, at its end or within: that must not go unsaid
};

/// For each format a whole file and `ofEach` broken ones, the same ones for the same seed.
std::vector<BrokenPhoto> brokenPhotos(quint32 seed, int ofEach);

} // namespace halvern
