// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QByteArray>
#include <QString>

namespace HALVERN_EXPORT halvern {

enum class NewFile {
    forAll,    ///< readable as the user's files are
    forMyself, ///< readable by the user only
};

/// Puts a text in the place of a file's content, through links. The file is there whole or as it was,
/// whatever fails and wherever the program ends. `kind` counts for a file that is not there yet. The system's
/// reason if it failed, empty on success. Any thread.
QString writeWholeFile(const QString& path, const QByteArray& text, NewFile kind = NewFile::forAll);

/// A lock on a file of that path, which stays there empty. It goes with the object, and with the process
/// however that ends. Any thread.
class FileLock {
public:
    /// Waits for whoever holds it, as long as it is told.
    FileLock(const QString& path, int milliseconds);
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    bool isHeld() const { return file_ >= 0; }

private:
    int file_ = -1;
};

} // namespace halvern
