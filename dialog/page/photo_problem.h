// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace halvern {

/// The sentences about files that cannot be printed as they are: what is wrong, and what to do. Any thread.
namespace photo_problem {

QString damaged(const QString& path);     ///< nothing of it can be read
QString partMissing(const QString& path); ///< a picture, but not all of it
QString tooLarge(const QString& path);
QString noPicture(const QString& path);
QString locked(const QString& path);
QString changed(const QString& path); ///< since it was opened

} // namespace photo_problem

/// A quick look without decoding: the sentence about a file that is missing, a folder, empty or unreadable.
/// Any thread.
QString fileProblem(const QString& path);

} // namespace halvern
