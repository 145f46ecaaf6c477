// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/loaded_trays.h"
#include "dialog/options/page_fit.h"

#include <QSizeF>
#include <QString>

#include <vector>

namespace halvern {

class PpdModel;

/// Where people look for a paper size, in the order in which the groups are shown.
enum class PaperGroup { loaded, recent, own, photo, roll, iso, us, other };

/// A paper size as a list shows it. A value.
struct PaperSize {
    QString keyword;
    QString text;
    QSizeF points;
    PaperGroup group = PaperGroup::other;
    QString borderless; ///< the same size without margins, which has no entry of its own; empty if none
    QString obstacle;   ///< the sentence why the printer's equipment rules it out; empty if it does not
    int tray = -1;      ///< which of the printer's trays it is loaded in; -1: none, or nobody knows
    QString place = {}; ///< the same in words, with the kind of paper
};

/// A group's heading.
QString groupText(PaperGroup group);

/// What a search among sizes finds this one by: its words and measures in millimetres, centimetres and
/// inches, without blanks around the "x".
QString searchText(const PaperSize& size);

/// The same form for what somebody types.
QString searchForm(const QString& typed);

/// The printer's sizes, each in the group that its measures put it in, small ones before large ones. A size
/// without margins whose name says that it belongs to one with margins is that one's.
std::vector<PaperSize> paperSizes(const PpdModel& model);

/// Puts what is on the loaded paper and what was used last before the others: each size is listed once.
void lift(std::vector<PaperSize>& sizes, const PaperRoom& room, const QStringList& recent);

/// Puts what is in the printer's trays before all others, once for each tray.
void liftTrays(std::vector<PaperSize>& sizes, const PpdModel& model, const QList<TrayPaper>& trays);

/// Whether the photos reach the paper's edges, and what turns that on and off.
struct BorderlessSwitch {
    bool isKnown = false;    ///< the printer has such a thing at all
    bool isPossible = false; ///< the chosen size has both
    bool isOn = false;
    QString key; ///< the option that says so: PageSize, or one of the printer's own
    QString on;
    QString off;
};

/// On the chosen size.
BorderlessSwitch borderlessSwitch(const PpdModel& model, const std::vector<PaperSize>& sizes);

} // namespace halvern
