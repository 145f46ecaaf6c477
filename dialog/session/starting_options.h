// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/ppd_model.h"
#include "dialog/options/printer_offer.h"

namespace halvern {

class PrintSettings;
struct Preset;

/// What became of the options that a printer starts with. All of this on the thread that owns the model.
struct StartingOptions {
    PageWishes page;
    QList<LeftOut> leftOut;
    QList<SettledOption> settled;
    bool isScalingSaved = false; ///< the user has saved it for every job, and nobody typed one
};

/// Applies what the queue and the user's files say, what a preset remembers (null: none), and what the
/// command line says, in that order.
StartingOptions applyGiven(PpdModel& model, const GivenOptions& given, const Preset* preset,
                           const GivenOptions& typed);

/// What the options are by the printer's defaults alone: the PPD's, and over them the queue's own. The model
/// is as it was.
QMap<QString, QString> printerDefaults(PpdModel& model, const OptionValues& queues);

/// What became of the lines for the back of the pictures.
struct AppliedLines {
    QStringList refusals; ///< a sentence for each line that cannot be printed
    QList<SettledOption> settled;
};

/// Applies them; `printer` is for the sentences.
AppliedLines applyBackLines(PpdModel& model, const QStringList& lines, const QString& printer);

/// Gives a sheet that was chosen by the PPD's keyword the printer's name for it, which is the text of that
/// choice and the only one that a panel knows, if such a sheet is loaded. In place of the PPD's default, if
/// that is none of those that are loaded, the sheet that fits: a panel would take the first by name. Answers
/// that sheet, which nobody has chosen; else nothing.
QString nameLoadedSheet(PpdModel& model, const PrinterOffer& offer);

/// Stores in the print settings what differs from `byDefault`, the model's values before, and the banner
/// pages that the queue adds by itself.
void storeStart(const PpdModel& model, const QMap<QString, QString>& byDefault, const QString& queueJobSheets,
                PrintSettings& settings);

} // namespace halvern
