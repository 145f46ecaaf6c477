// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/option_value.h"
#include "dialog/page/colour_plan.h"
#include "dialog/page/layout.h"
#include "dialog/page/page_choice.h"
#include "dialog/session/handed_options.h"

#include <QMarginsF>
#include <QStringList>

namespace halvern {

inline constexpr int kMostCopies = 999;

/// What is known of a document that another program prints, and that the dialog shows no page of.
struct BlindDocument {
    /// Whether it is there already; if not, the program makes it when the dialog has been accepted, and lays
    /// it out as the dialog says.
    bool isHere = false;
    QString application = {}; ///< what the user calls the program; empty if nobody knows
    QString acceptText = {};  ///< what the program wants on the button, "&" before the key; empty: "Print"
    bool hasCurrentPage = false;
    bool hasSelection = false;
    QSizeF paper = {};                     ///< that the margins are for: the upright sheet in points
    std::optional<QMarginsF> margins = {}; ///< in points, of the page as its reader looks at it
};

/// What a session starts with.
struct SessionRequest {
    QString printer;      ///< a queue or its instance; empty: the user's or the server's default
    OptionValues options; ///< typed on the command line
    QStringList files;
    bool areFilesBorrowed = false; ///< another program's, and gone when the dialog is
    int copies = 1;
    PageChoice pages = {};
    PageTurn turn = PageTurn::automatic;
    QList<PhotoPlacement> placements =
        {};                    ///< of the photos in their order, the last one also of those that follow
    QString title = {};        ///< of the job; empty: the first photo's name
    bool printDamaged = false; ///< also photos of which a part is missing, without asking
    bool skipBroken = false;   ///< leave out what cannot be read, or not whole, without asking
    /// Whether somebody sees which printer was taken: another one may be if the user's default is none of the
    /// server's, or if nobody has named one and the server has no default.
    bool isAttended = true;
    /// Whether the panels' background work gets to know the printer, and so may ask it what is loaded, which
    /// sends it command jobs.
    bool panelsAskPrinter = true;
    /// Whether somebody is at the panels. Without a user they change no options: one that knows no papers yet
    /// would settle on a feed of its own.
    bool panelsChangeOptions = true;
    QStringList backLines = {}; ///< for the back of the pictures, in the form that is stored
    /// The preset to start with, by its name; empty: what was printed with last, if the session remembers.
    QString preset = {};
    /// Whether it starts with what the user printed with last, and remembers what is printed.
    bool remembers = true;
    int photosPerJob = 0;                       ///< at most so many; 0: all in one job
    bool namesCopies = false;                   ///< somebody said how many, so no preset decides it
    std::optional<BlindDocument> document = {}; ///< printed in place of files
    std::optional<HandedOptions> handed = {};   ///< another program's, over what was printed with last
    std::optional<Scaling> scaling = {};        ///< no preset decides it then
    bool isCollated = true;
    int scalePercent = 100;  ///< of a document to come
    SheetWishes sheets = {}; ///< what no preset decides then
    ColourSettings colours = {};
    bool namesColours = false; ///< somebody said who converts them, so no preset decides it
    QString server = {};       ///< that the process was told to use; empty: nobody said
};

} // namespace halvern
