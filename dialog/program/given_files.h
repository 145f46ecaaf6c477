// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace halvern {

/// The files that a command line names: "-" is a file with what comes on standard input, which is read once
/// and gone when the program ends; "@NAME" is the files that a text file names, one a line; a folder is its
/// photos. What is none of these is taken as it is. Adds a sentence to `problems` for each that fails. Main
/// thread only; waits for standard input.
QStringList givenFiles(const QStringList& arguments, QStringList* problems);

} // namespace halvern
