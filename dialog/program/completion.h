// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QTextStream>

namespace halvern {

/// What the word that is being typed could become.
struct Candidate {
    QString word;
    QString description = {}; ///< empty: none
};

struct Completion {
    QList<Candidate> candidates;
    bool takesFiles = false; ///< the names of files fit, too
};

/// Completes the last of the words behind the program's name, for a shell. Reads presets and layouts, and
/// asks the print server where queues, options or jobs are wanted: it waits for both. What cannot be had is
/// left out without a word. Needs a core application only. Main thread.
Completion complete(const QStringList& words);

/// Writes it as the shells' scripts read it: a candidate a line, its description behind a tab; a line with
/// nothing but a slash stands for files. The program's exit status.
int writeCompletion(const QStringList& words, QTextStream& out);

} // namespace halvern
