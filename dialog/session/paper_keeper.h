// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/ppd_model.h"
#include "dialog/options/printer_offer.h"

#include <optional>

namespace halvern {

class PrintSettings;

/// Guards what is chosen against panels that change it by themselves before they know what the printer has
/// loaded. What the printer offers stays as it is; what it does not offer may be corrected.
///
/// A panel that knows no sheets takes the roll for the only feed, and makes the sheets available again only
/// when its menus are built and no name of a sheet is to be found. So the name is out of the panels' sight
/// from the one moment to the other.
///
/// Main thread only. What it refers to outlives it.
class PaperKeeper {
public:
    enum class Answer {
        refuse,
        accept,
        fillIn, ///< accept: nobody had chosen anything, so there is nothing to tell
    };

    PaperKeeper(PpdModel& model, PrintSettings& settings, PrinterOffer offer);

    const PrinterOffer& offer() const { return offer_; }

    /// A choice that a panel proposes by itself.
    Answer judge(const QString& key, const QString& choice);

    /// Whether a sheet's name is the PPD's default still, which nobody has chosen.
    bool isByDefault(const QString& key) const;

    /// The option was changed: what was refused for it is settled.
    void forget(const QString& key);

    /// News of the printer. Answers the refused choices that are now known to be right.
    OptionValues takeOffer(PrinterOffer offer);

    /// After the panels have saved: a name that they were not shown, what they were refused, and no name at
    /// all are not what they have chosen.
    void settleSaved();

    /// What the panels may find of the sheet's name in the settings once more.
    void showSheetName();

private:
    void keepChosen(const QString& key);
    std::optional<QString> standardSheet() const;
    void hideSheetName();

    PpdModel& model_;
    PrintSettings& settings_;
    PrinterOffer offer_;
    QMap<QString, QString> refused_;
};

} // namespace halvern
