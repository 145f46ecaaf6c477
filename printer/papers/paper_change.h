// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace halvern {

/// Taking papers out of a paper list (README.md, "The list") and loading them. `which` names papers:
/// "sheets", "rolls", "all", a sheet's name, or a roll's width in millimetres. The answer is the changed
/// list; nothing, and what to do about it in `failure`, if the list cannot be read or no paper goes by that
/// name. Any thread.
std::optional<QByteArray> papersTakenOut(const QByteArray& list, const QString& which, QString& failure);

/// Loads what `stock`, another list, has by the name; a paper that is loaded already is replaced.
std::optional<QByteArray> papersLoaded(const QByteArray& list, const QByteArray& stock, const QString& which,
                                       QString& failure);

} // namespace halvern
