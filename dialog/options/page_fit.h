// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/printer_offer.h"

#include <QSizeF>

#include <optional>

namespace halvern {

class PpdModel;

/// The paper that a page has to be on, in millimetres. What nobody knows is nothing, and no limit.
struct PaperRoom {
    std::optional<double> width;
    std::optional<double> length; ///< never known of a roll
    bool isRoll = false;
};

/// A size that a sheet's name tells, in millimetres: "Photo Gloss 102x152", "Matte A4"; nothing if it tells
/// none, or one that may be in any unit. Any thread.
std::optional<QSizeF> sizeInName(const QString& name);

/// The chosen roll or sheet. `sheetTitle` is the chosen sheet's name in words. Any thread.
PaperRoom paperRoom(const PrinterOffer& offer, const QMap<QString, QString>& choices,
                    const QString& sheetTitle);

/// Whether a page, in points, can be on the paper, whichever way it is turned. Any thread.
bool isOn(const QSizeF& page, const PaperRoom& room);

struct NamedPage {
    QString keyword;
    QSizeF points;
};

/// The page that uses the paper best in place of `wanted`: on a sheet the largest, on a roll one as wide as
/// the roll that is most alike; the first of equals; empty if none can be on it. Any thread.
QString bestPage(const QList<NamedPage>& pages, const QSizeF& wanted, const PaperRoom& room);

/// The loaded sheet to take where nobody has chosen one: the smallest that the chosen page can be on, at the
/// chosen resolution; empty if there is none. On the model's thread.
QString fittingSheet(const PpdModel& model, const PrinterOffer& offer);

/// A chosen page size that cannot be on the chosen paper. The user may print all the same.
struct PageMisfit {
    QString sentence;
    QString fitting;     ///< a choice of PageSize that can be on it; empty if the PPD has none
    QString fittingText; ///< the same for the user
};

/// Whether the chosen page size can be on the chosen paper, or nobody knows. On the model's thread.
bool isPageOnPaper(const PpdModel& model, const PrinterOffer& offer);

/// Looks at what is chosen; nothing if the page fits, or if nobody knows. On the model's thread.
std::optional<PageMisfit> findMisfit(const PpdModel& model, const PrinterOffer& offer);

} // namespace halvern
