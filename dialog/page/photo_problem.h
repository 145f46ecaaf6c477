// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace halvern {

/// Why a file cannot be printed as it is.
enum class PhotoFault {
    missing,
    isFolder,
    unreadable, ///< not for this user
    empty,
    noPicture,
    damaged,     ///< nothing of it can be read
    partMissing, ///< a picture, but not all of it
    tooLarge,
    locked,
    changed, ///< since it was opened
};

/// What is wrong with the file, and what to do. Any thread.
QString photoProblem(PhotoFault fault, const QString& path);

/// A quick look without decoding: the sentence about a file that is missing, a folder, empty or unreadable.
/// Any thread.
QString fileProblem(const QString& path);

} // namespace halvern
