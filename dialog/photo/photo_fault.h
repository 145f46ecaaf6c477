// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace halvern {

/// Why a file cannot be printed as it is.
enum class PhotoFault : quint8 {
    none, ///< nothing is wrong
    missing,
    isFolder,
    unreadable, ///< not for this user
    empty,
    noPicture,
    cameraRaw,   ///< for the program that develops it
    unsupported, ///< a picture of a kind that no reader here knows
    highRange,   ///< its numbers mean more light than paper gives back
    damaged,     ///< nothing of it can be read
    partMissing, ///< a picture, but not all of it
    tooLarge,
    locked,
    changed,  ///< since it was opened
    crashed,  ///< its reader has ended over it
    stuck,    ///< its reader does not come to an end
    noReader, ///< halvern-decode cannot be started
};

} // namespace halvern
