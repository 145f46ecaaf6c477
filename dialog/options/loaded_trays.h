// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/tray_paper.h"

#include <QList>

namespace halvern {

class PpdModel;

/// What the options have to be for a page to come from a tray; what they have no choice for is empty.
struct TrayChoice {
    QString page; ///< of PageSize, as the tray's paper is printed on
    QString slot; ///< of InputSlot
    QString type; ///< of MediaType
};

/// What a printer says is loaded, in terms of the options that the dialog has for it. On the model's thread.
TrayChoice choiceFor(const PpdModel& model, const TrayPaper& paper);

/// Whether a page, in points, is of the paper's size: whichever way it is turned, and on a roll as wide.
bool isPageOf(const QSizeF& page, const TrayPaper& paper);

/// "Photo tray", "Glossy photo paper": the words of the printer's own options come before ours.
QString trayText(const PpdModel& model, const TrayPaper& paper);
QString paperTypeText(const PpdModel& model, const TrayPaper& paper);

/// Whether a choice of InputSlot or MediaType leaves it to the printer.
bool isAutomatic(const QString& choice);

/// The tray that the options name, and whose paper they are set for; -1 if none is. A printer that cannot be
/// told a tray has but one.
int trayInUse(const PpdModel& model, const QList<TrayPaper>& trays);

} // namespace halvern
