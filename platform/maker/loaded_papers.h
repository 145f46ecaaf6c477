// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>

struct ppd_file_s;
using ppd_file_t = ppd_file_s;

namespace HALVERN_EXPORT halvern {

/// A sheet, or a roll with one surface, and what the printer can do on it.
struct LoadedPaper {
    QString sheetName; ///< empty for a roll
    QString width;     ///< a roll's, "152.4 mm"
    QString widthCode; ///< a roll's choice of the PPD's option PaperWidth, tenths of a millimetre; a sheet's
                       ///< width too, if it is reported
    QString surface;   ///< the choice of the PPD's option PaperSurface; empty if not reported
    QList<int> dotsPerInch;
    QList<int> tones; ///< indexes of the choices of the PPD's option PaperTone

    bool isRoll() const { return sheetName.isEmpty(); }
};

/// What a queue's PPD holds of what its printer last reported.
struct LoadedPapers {
    std::optional<QDateTime> lastUpdate; ///< nothing if the printer has never reported
    QList<LoadedPaper> papers;           ///< sheets and rolls in the catalogue's order
    QString corrupt;                     ///< "corrupt: " and why, if the report cannot be read
};

/// Reads the report as the Features panel does. Papers that only differ in resolution are one, as long as
/// their tones are the same. Any thread, with a file of its own.
LoadedPapers readLoadedPapers(ppd_file_t* file);

} // namespace halvern
