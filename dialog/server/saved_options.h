#pragma once

#include "dialog/options/option_value.h"

#include <QMap>
#include <QString>

namespace halvern {

/// What the user saved with lpoptions.
struct SavedOptions {
    QString defaultPrinter; ///< empty if none was chosen
    QMap<QString, OptionValues> byPrinter;
};

/// Reads lpoptions files in this order, later ones winning. Files that cannot be read count as empty.
SavedOptions readSavedOptions(const QStringList& paths);

/// The same for the system's file and the user's own, with the LPDEST and PRINTER variables over both.
SavedOptions readSavedOptions();

} // namespace halvern
