// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

namespace halvern {

/// Whether the file begins as a TIFF file does. Any thread, like all here.
bool looksLikeTiff(const QString& path);

/// Keeps the TIFF library from writing to the terminal, also when Qt reads such a file.
void silenceTiffLibrary();

/// Where a TIFF file's pictures stand among its directories, from 0: without the reduced copies and the masks
/// that programs keep beside them. Only the first one if there is nothing else, or if the file cannot be
/// read.
std::vector<int> tiffPages(const QString& path);

/// Whether all data of a page are there and can be unpacked. Reads all of them.
bool isTiffPageWhole(const QString& path, int directory);

} // namespace halvern
