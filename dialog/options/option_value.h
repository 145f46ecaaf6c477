// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace halvern {

/// An option keyword with its value, as users write KEY=VALUE.
struct OptionValue {
    QString key;
    QString value;

    bool operator==(const OptionValue&) const = default;
};

using OptionValues = QList<OptionValue>;

/// What stands on a screen for a PIN or a password, however long it is.
QString concealed();

/// "KEY=VALUE" -> an option, and "fit-to-page" -> "fit-to-page=true", as the server's own words are written;
/// nothing without a key or, for a printer's option, a "=".
std::optional<OptionValue> parseOption(const QString& text);

} // namespace halvern
