// SPDX-License-Identifier: MIT
#pragma once

#include "platform/maker/loaded_papers.h"

#include <QMap>

namespace halvern {

/// What a printer can do, as it has told last. A value.
struct PrinterOffer {
    QList<LoadedPaper> papers; ///< empty: nobody knows
    bool feedsSheets = true;
    bool turnsSheets = true;
};

/// Reads it from a queue's PPD. Any thread, with a file of its own.
PrinterOffer readPrinterOffer(ppd_file_t* file);

/// Whether it depends on what the printer has loaded, or is able to do, which of the option's choices are
/// possible.
bool dependsOnOffer(const QString& key);

/// Whether the printer can do what is chosen for such an option beside the other choices. What nobody knows
/// counts as possible.
bool isOffered(const PrinterOffer& offer, const QMap<QString, QString>& choices, const QString& key);

} // namespace halvern
