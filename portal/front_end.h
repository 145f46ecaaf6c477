// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QVersionNumber>

#include <optional>

namespace halvern {

/// A yes or no, with the sentence that says why.
struct FrontEndAnswer {
    bool isYes = false;
    QString sentence;
};

/// Where the portal's front end looks, and how it chooses. A value.
struct FrontEnd {
    QVersionNumber version;    ///< null: it is not installed
    QStringList portalFolders; ///< with the back ends' descriptions
    QStringList configFolders; ///< with portals.conf, the user's own first
    QStringList desktops;      ///< what the session says that it is

    /// As it is in this session.
    static FrontEnd installed();

    /// From this version on it reads portals.conf; before, it takes the first description that says it is for
    /// the desktop.
    bool readsConfiguration() const { return version >= QVersionNumber(1, 17); }
};

/// Whether it chooses this program for printing. Any thread.
FrontEndAnswer checkFrontEnd(const FrontEnd& frontEnd = FrontEnd::installed());

/// Writes the line into the user's portals.conf that makes it choose this program, and leaves everything else
/// as it is in force; takes the line away again.
FrontEndAnswer enableInFrontEnd(const FrontEnd& frontEnd = FrontEnd::installed());
FrontEndAnswer disableInFrontEnd(const FrontEnd& frontEnd = FrontEnd::installed());

} // namespace halvern
