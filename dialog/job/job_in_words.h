// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QSizeF>
#include <QStringList>

#include <vector>

namespace halvern {

class JobValues;
class PpdModel;

/// What a job is described from. All of it is looked at, nothing is kept.
struct JobToTell {
    const PpdModel& model;                   ///< for words and measures only
    const JobValues& options;                ///< as they go out
    const QMap<QString, QString>& byDefault; ///< what the printer does by itself
    int pages = 0;                           ///< that there are
    std::vector<size_t> chosen = {};         ///< those that are printed, from 0
    bool isReversed = false;                 ///< the last one first
    bool isOnPaper = true;                   ///< whether the page can be on the paper
    QString layout = {};                     ///< how photos are put on sheets; empty: one on each
};

/// A job in words: "10 × 15 cm", "Gloss roll 152 mm", "300 dpi", "2 copies", "text on the back".
struct JobInWords {
    QStringList parts;
    QString problem; ///< what does not fit, in a few words; empty if all does
    QString warning; ///< what may run out meanwhile; empty if nothing
};

/// The user's words for what is sent, in the order in which people ask for it: paper, quality, how many,
/// extras, and last what else differs from the printer's defaults: one or two by name, more by number. Takes
/// time in step with the number of options. On the model's thread.
JobInWords jobInWords(const JobToTell& job);

/// What a value that is sent is called by the model: jobs spell custom values in a way of their own.
QString valueInModel(const PpdModel& model, const QString& key, const QString& sent);

/// A page size's name ("A4"), or, where the PPD's name is a measure itself, the measure as the user's country
/// has it.
QString pageInWords(const PpdModel& model, const QString& choice);

/// A size in points: "10 × 15 cm" for what photographers call so, else in millimetres, or in inches.
QString sizeInWords(const QSizeF& points);

} // namespace halvern
