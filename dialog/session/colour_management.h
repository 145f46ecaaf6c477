// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/colour_plan.h"
#include "dialog/page/screen_colours.h"
#include "dialog/session/profile_shelf.h"

#include <QHash>
#include <QObject>

namespace halvern {

class ColourServiceWatch;
class PpdModel;

/// What the preview is to simulate. A value.
struct ProofSettings {
    bool isOn = false;
    bool showsPaper = false; ///< the paper's own white and black
    bool marksGamut = false; ///< what cannot be printed is painted over

    bool operator==(const ProofSettings&) const = default;
};

/// The profile that the printer comes with for what is chosen now: the file that its PPD names for its colour
/// mode, paper and resolution. Empty if it names none that is there.
QString profileOfPpd(const PpdModel& model);

/// Works out who converts a job's colours, from what to what, and says it. Main thread only; what is asked of
/// the system's colour service or read from a file comes later.
class ColourManagement : public QObject {
    Q_OBJECT

public:
    explicit ColourManagement(QObject* parent = nullptr);

    /// The colour service is asked for the queue's profile once.
    void setQueue(const QString& queue);

    /// Whether the colour service or a profile's file has not answered yet.
    bool isAsking() const;

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

    /// What the user wants to see. It is kept where no proof can be had: the next profile may allow one.
    const ProofSettings& proof() const { return proof_; }

    void setProof(const ProofSettings& proof);

    /// Why no print can be simulated, in a sentence; empty if one can.
    QString whyNoProof(const ColourSettings& settings, const PpdModel* model) const;

    /// What the preview shows of these colours.
    ScreenPlan screenPlan(const ColourSettings& settings, const PpdModel* model) const;

    /// What is simulated, in a few words; empty if nothing is.
    QString proofInWords(const ColourSettings& settings, const PpdModel* model) const;

Q_SIGNALS:
    /// The colour service has answered, or a profile was read.
    void changed();
    void proofChanged();

private:
    void ask();
    void takeProfile(const QString& queue, const QString& path);

    QString queue_;
    QHash<QString, QString> ofService_; // a queue's profile
    ColourServiceWatch* watch_;
    ProfileShelf* shelf_;
    ProofSettings proof_;
};

/// "perceptual", "relative", "saturation" or "absolute"; and the other way round, false if it is none.
QString intentWord(ColourIntent intent);
bool readIntent(const QString& word, ColourIntent& intent);

/// The intent's name for the user.
QString intentName(ColourIntent intent);

} // namespace halvern
