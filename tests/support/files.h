// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace halvern {

/// Writes a file that everybody may read, and the folders that it lies in; ends the test program if that
/// cannot be done. Answers the path.
QString writeFile(const QString& path, const QByteArray& content);

/// A photo of 600 x 400 pixels at the path, in several tones. Answers the path.
QString makeTestPhoto(const QString& path);

/// The file's content; a failed test if it cannot be read.
QByteArray readFile(const QString& path);

} // namespace halvern
