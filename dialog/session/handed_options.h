// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/option_value.h"

#include <QSizeF>

#include <optional>

struct ppd_file_s;
using ppd_file_t = ppd_file_s;

namespace halvern {

struct PresetEntry;
struct SheetGeometry;

/// Settings of a job that another program hands in. They are a stranger's: what the printer does not have is
/// not taken over. A value.
struct HandedOptions {
    QString giver;                ///< what the user calls the program
    QString printer;              ///< whose options they are; empty: nobody's
    OptionValues printersOptions; ///< for that printer only
    OptionValues options;         ///< for any, in the words of IPP
    QString paperName;            ///< as a PPD or IPP calls it; empty if nobody says
    QSizeF paper;                 ///< the upright sheet in points; empty if nobody says

    /// Whether there is anything to take over for the printer.
    bool isFor(const QString& queue) const { return !queue.isEmpty() && queue == printer; }
};

/// What was printed with last on the printer (nothing: never), with what was handed in over it. On the thread
/// that owns `file`.
std::optional<PresetEntry> withHanded(ppd_file_t* file, const QString& printer, const HandedOptions& handed,
                                      const PresetEntry* last);

/// A sheet as other programs speak of it.
struct SheetName {
    QString keyword; ///< the PPD's; empty for measures of the user's own
    QString pwg;     ///< "iso_a4", or the PPD's keyword where the standard has no name for it
};

SheetName sheetName(const QString& pageSize);

/// The word of IPP's for what is chosen for printing on both sides: "two-sided-long-edge" for
/// "DuplexNoTumble".
QString sidesWord(const QString& choice);

} // namespace halvern
