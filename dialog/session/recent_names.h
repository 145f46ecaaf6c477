// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace halvern {

/// The names that a user has used last, the newest first, kept with the user's preferences. Main thread only.
class RecentNames {
public:
    /// `key` is the preference's; reads it.
    RecentNames(QString key, qsizetype most);

    const QStringList& names() const { return names_; }

    /// Puts the name in front and writes it down.
    void use(const QString& name);

private:
    QString key_;
    qsizetype most_;
    QStringList names_;
};

} // namespace halvern
