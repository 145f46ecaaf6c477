// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

class QComboBox;

/// Enabling of the panel's controls. What is disabled says why, for those who hear the panel instead of
/// seeing it, and its caption is dimmed with it. Null controls are passed over. Main thread only.
namespace halvern::availability {

/// `why` is a sentence in the user's language.
void setControl(QWidget* control, bool available, const QString& why);
void setItem(QComboBox* popup, int index, bool available, const QString& why);

/// Whether the control is enabled itself, whatever its surroundings are.
bool isEnabled(const QWidget* control);

} // namespace halvern::availability
