// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/option_value.h"

#include <QMap>
#include <QString>

namespace halvern {

/// What the user saved with lpoptions. A value of its owner's, any thread. A printer may have instances
/// ("queue/name"), each with options of its own over the queue's.
struct SavedOptions {
    QString defaultPrinter; ///< a queue or an instance; empty if none was chosen
    QMap<QString, OptionValues> byPrinter;

    /// The options of a queue, or of an instance: the queue's with its own after them.
    OptionValues optionsOf(const QString& printer) const;
};

/// The queue of a printer's name: "queue/name" -> "queue".
QString queueOf(const QString& printer);

/// The printer to start with, a queue or an instance: the one that was asked for, else the user's default. If
/// both are empty, the server's default has its turn.
QString startingPrinter(const QString& asked, const SavedOptions& saved);

/// Reads lpoptions files in this order, later ones winning. Files that cannot be read, and what is no file
/// (a pipe would never end), count as empty. Reads from the disk; any thread.
SavedOptions readSavedOptions(const QStringList& paths);

/// The same for the system's file and the user's own, with the LPDEST and PRINTER variables over both.
SavedOptions readSavedOptions();

} // namespace halvern
