// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/ppd_model.h"

#include <QJsonArray>

namespace halvern {

/// Every option of the printer in a line of its own, in the PPD's order:
/// KEY=CURRENT (default DEFAULT) "TEXT": CHOICE CHOICE Custom.REAL
QStringList optionLines(const PpdModel& model, const QMap<QString, QString>& byDefault);

/// The same with all texts, the groups and the limits of custom values.
QJsonArray optionsAsJson(const PpdModel& model, const QMap<QString, QString>& byDefault);

} // namespace halvern
