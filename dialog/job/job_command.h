// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/option_value.h"

#include <QStringList>

namespace halvern {

/// A job as the program's command line has to know it.
struct JobToRepeat {
    QString printer;
    QString server; ///< empty: as without one
    QStringList files;
    OptionValues options; ///< those that nobody would send without having chosen them
    QStringList page;     ///< what the dialog itself decides, as KEY=VALUE
    QString orientation;  ///< "portrait" or "landscape"; empty: as the photo
    QStringList photos;   ///< what is wanted of each, as words of the command line
    QStringList sheets;   ///< how they are put on sheets, too
    QStringList colours;  ///< who converts them, as words of the command line
    QString ranges;       ///< "1-3, 7"; empty: all pages
    QString title;        ///< empty: as without one
    int copies = 1;
    int photosPerJob = 0; ///< 0: all in one
    bool isReversed = false;
    bool printsDamaged = false;
};

/// The line that prints the job again, without a window: fit for a shell as it stands, whatever is in it. The
/// files are named by absolute paths. Any thread.
QString commandFor(const JobToRepeat& job);

/// A word as a shell reads it back, plain where it can be. Of control characters only line feeds
/// at its end stand in it as such.
QString shellQuoted(const QString& word);

} // namespace halvern
