#pragma once

#include <QList>
#include <QMap>
#include <QString>

namespace halvern {

/// An option keyword with its value, as users write KEY=VALUE.
struct OptionValue {
    QString key;
    QString value;

    bool operator==(const OptionValue&) const = default;
};

using OptionValues = QList<OptionValue>;

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
