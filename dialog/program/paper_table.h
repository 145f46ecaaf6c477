// SPDX-License-Identifier: MIT
#pragma once

#include "platform/maker/loaded_papers.h"

#include <functional>

namespace halvern {

/// Texts for a terminal, on any thread that owns the PPD.
///
/// "Tessarin: last updated 2026-11-21 08:20 (3 min ago)" in the user's language and time zone.
QString paperHeading(const QString& queue, const LoadedPapers& loaded, const QDateTime& now);

/// The papers as lines of aligned columns, each ended by a line feed. Surfaces and tones are called what the
/// PPD calls them, which `words` puts into the user's language.
QString paperTable(const LoadedPapers& loaded, ppd_file_t* file,
                   const std::function<QString(const QString&)>& words);

} // namespace halvern
