// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QString>
#include <QVariantMap>

#include <functional>

namespace HALVERN_EXPORT halvern {

/// The user's preferences, kept in one settings file ("halvern/print.ini" in the user's configuration
/// folder). Main thread only.
class UserDefaults {
public:
    static UserDefaults& standardUserDefaults();

    /// The name of the domain that all programs share.
    static QString globalDomain();

    /// All keys of a domain with their values; empty if the domain does not exist or the file cannot be read.
    QVariantMap persistentDomain(const QString& domain) const;

    /// Changes values of the global domain and writes them out, on what the file holds at that moment:
    /// another program may have changed others. Nothing is written where `change` changes nothing. Logs a
    /// line if the file cannot be written, which is then as it was.
    void changeGlobal(const std::function<void(QVariantMap& values)>& change);

    /// Replaces the whole domain and writes it out. Logs a line if the file cannot be written, which is then
    /// as it was.
    void setPersistentDomain(const QVariantMap& values, const QString& domain);

    /// A single value of the global domain, invalid if absent.
    QVariant objectForKey(const QString& key) const;

private:
    void changeDomain(const QString& domain, const std::function<void(QVariantMap& values)>& change);
};

} // namespace halvern
