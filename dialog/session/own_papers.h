// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QSizeF>
#include <QString>

namespace halvern {

/// A paper size that a user has given a name.
struct OwnPaper {
    QString name;
    QSizeF points;

    bool operator==(const OwnPaper&) const = default;
};

/// The user's own paper sizes, kept with the preferences: the same on every printer that takes their
/// measures. What cannot be read counts as not there. Main thread only.
QList<OwnPaper> ownPapers();

/// Keeps it, in place of one of the same name.
void keepOwnPaper(const OwnPaper& paper);

void forgetOwnPaper(const QString& name);

} // namespace halvern
