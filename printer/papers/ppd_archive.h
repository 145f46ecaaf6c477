// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace halvern {

/// The archive that a PPD file carries.
struct PpdArchive {
    /// Why the PPD cannot be read, empty if it can.
    QString unreadable;
    /// Whether the PPD has a first piece, so that there should be an archive.
    bool present = false;
    /// Nothing if there is no piece, or the pieces do not decode.
    std::optional<QByteArray> bytes;
};

/// Reads the archive as the print dialog does. Any thread.
PpdArchive archiveInPpd(const QString& path);

} // namespace halvern
