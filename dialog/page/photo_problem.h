// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/photo/photo_fault.h"

#include <QString>

namespace halvern {

/// What is wrong with the file, and what to do. Any thread.
QString photoProblem(PhotoFault fault, const QString& path);

/// A quick look without decoding: the sentence about a file that is missing, a folder, empty or unreadable.
/// Any thread.
QString fileProblem(const QString& path);

} // namespace halvern
