// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace halvern {

/// The endings of the names of files that are read as photos: "jpg".
QStringList photoSuffixes();

/// A folder's photos, told by their names, as people order them; what lies in folders within it does not
/// count. Any thread.
QStringList photosInFolder(const QString& folder);

/// The names with each folder replaced by its photos. A folder without any adds a sentence to `problems`.
QStringList withFoldersOpened(const QStringList& names, QStringList* problems);

} // namespace halvern
