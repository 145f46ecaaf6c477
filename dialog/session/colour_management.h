// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/option_value.h"
#include "dialog/page/colour_plan.h"

#include <QHash>
#include <QObject>

namespace halvern {

class PpdModel;

/// A profile that colours can be converted to, or the sentence that says why it is none.
struct PrinterProfile {
    QByteArray bytes;
    QString path;
    QString name; ///< its own: a stranger's text
    QString problem;
};

/// Reads an ICC profile from a file. Any thread.
PrinterProfile readPrinterProfile(const QString& path);

/// The profile that the printer comes with for what is chosen now: the file that its PPD names for its colour
/// mode, paper and resolution. Empty if it names none that is there.
QString profileOfPpd(const PpdModel& model);

/// What tells the printer's driver not to convert again, as far as resources/colour-drivers.json knows it.
OptionValues withoutDriverColours(const PpdModel& model);

/// Works out who converts a job's colours, from what to what, and says it. Main thread only; what is asked of
/// the system's colour service comes later.
class ColourManagement : public QObject {
    Q_OBJECT

public:
    explicit ColourManagement(QObject* parent = nullptr) : QObject(parent) {}

    /// Asks the colour service for the queue's profile; what an earlier queue had is forgotten.
    void setQueue(const QString& queue);

    /// Whether the colour service has not answered yet.
    bool isAsking() const { return isAsking_; }

    /// The printer's own profile: what the PPD names, else what the colour service has for the queue; empty:
    /// none is known.
    QString ownProfile(const PpdModel& model) const;

    /// The profile that the settings come to; empty bytes if the printer manages colours, or with a problem.
    PrinterProfile profileFor(const ColourSettings& settings, const PpdModel* model) const;

    /// What a job's colours are converted to.
    ColourPlan planFor(const ColourSettings& settings, const PpdModel* model) const;

    /// The dialog's conversion in a few words: 'colours for "Glossy"'.
    QString shortly(const ColourSettings& settings, const PpdModel* model) const;

    /// Who converts, from what to what: a sentence.
    QString inWords(const ColourSettings& settings, const PpdModel* model) const;

Q_SIGNALS:
    /// The colour service has answered.
    void changed();

private:
    void takeProfile(const QString& queue, const QString& path);

    QString queue_;
    QString profileOfService_;
    bool isAsking_ = false;
    mutable QHash<QString, PrinterProfile> read_; // by path
};

/// "perceptual", "relative", "saturation" or "absolute"; and the other way round, false if it is none.
QString intentWord(ColourIntent intent);
bool readIntent(const QString& word, ColourIntent& intent);

/// The intent's name for the user.
QString intentName(ColourIntent intent);

} // namespace halvern
