// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/ppd_model.h"
#include "dialog/options/preset.h"
#include "dialog/session/page_setup.h"

#include <QVariantMap>

namespace halvern {

struct SessionRequest;

/// What a preset holds only if somebody said so.
struct PresetContents {
    bool copies = false;
    bool pages = false; ///< which pages are printed
    bool backText = false;
};

/// What this preset holds of that, for one that takes its place.
PresetContents contentsOf(const Preset& preset);

/// The printer's make and model as its PPD has them; empty if it does not say.
QString makeAndModelOf(ppd_file_t* file);

/// A preset of what is chosen. `saved` is what the panels saved, and wins over the model; `byDefault` are the
/// printer's defaults.
Preset capturePreset(const PpdModel& model, const QVariantMap& saved, const PageSettings& page,
                     const QMap<QString, QString>& byDefault, const PresetContents& contents);

/// The same as what was printed with last: without copies, and without what goes on the back. `byDefault` are
/// the values that counted before anybody chose one, the user's saved options among them.
Preset captureLastUsed(const PpdModel& model, const QVariantMap& saved, const PageSettings& page,
                       const QMap<QString, QString>& byDefault);

/// What was printed with last without what nobody chose then and the user's saved options say now.
Preset withoutSaved(const Preset& lastUsed, const GivenOptions& saved);

/// The same preset in the words of the printer's PPD, where its own are the server's. What cannot be said in
/// these stays.
Preset understoodPreset(ppd_file_t* file, const Preset& preset);

/// The file of the colour profile that it converts to; empty: the printer's own, or none.
QString profileOf(const Preset& preset);

/// Whether the option is a text for the back of the pictures, or switches one on.
bool isAboutBack(const QString& key);

/// A preset's options as far as the printer has them. `otherwise` are the values that count without it; what
/// it has in common with them is not given. What is gone and had the printer's default anyway is not worth a
/// word; what nobody may set by a preset is left out with a sentence.
struct PresetOptions {
    GivenOptions given;
    QList<LeftOut> leftOut;
};

PresetOptions optionsOf(const PpdModel& model, const Preset& preset, const QMap<QString, QString>& otherwise);

/// Whether the model's values and the page are what the preset says. `settled` are values that nobody chose:
/// the printer's panels filled them in.
bool isAsPreset(const PpdModel& model, const PageSettings& page, const Preset& preset,
                const QMap<QString, QString>& settled);

/// The page as the preset wants it; what it does not name stays, and so does what it names wrongly.
PageSettings withPreset(const PageSettings& page, const Preset& preset);

/// The same at the start, where what somebody asked for stays: copies, pages and their order, the turn.
PageSettings startingPage(const PageSettings& page, const Preset& preset, const SessionRequest& request,
                          const PageWishes& wishes);

/// The wishes that a preset leaves open: it wins over what the user has saved for every job.
PageWishes withoutDecided(const PageWishes& wishes, const Preset& preset);

/// The page with what is still as the preset set it put back to what was before.
PageSettings withoutPreset(const PageSettings& now, const PageSettings& asPreset, const PageSettings& before);

/// One sentence for what could not be had of a preset with this title; empty if all could.
QString leftOutSentence(const QString& title, const QList<LeftOut>& leftOut);

} // namespace halvern
