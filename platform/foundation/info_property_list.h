// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariantMap>

#include <optional>

namespace halvern {

/// Reads a bundle's own property list, XML or binary. Only for files that we install ourselves: the library
/// behind it does not hold against hostile input. Nothing if the file cannot be read or is no dictionary;
/// `why`, if given, says which. Any thread.
std::optional<QVariantMap> readInfoPropertyList(const QString& path, QString* why = nullptr);

} // namespace halvern
