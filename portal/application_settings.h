// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/session_request.h"

#include <QMap>
#include <QVariantMap>

namespace halvern {

/// What was accepted in a dialog, as far as an application gets to know of it.
struct AcceptedJob {
    QString printer;
    QMap<QString, QString> printersOptions;
    int copies = 1;
    PageChoice pages = {};
    int scalePercent = 100;
    PageLayout sheet = {}; ///< as the user looks at it; lengths are points
    QString pageSize = {}; ///< the PPD's keyword
    QString pageText = {}; ///< the same for the user
    QString sides = {};    ///< IPP's word
    int resolution = 0;    ///< dots per inch
    QString fileFormat = {};
    QString colourMode = {}; ///< IPP's words; empty if nobody knows
    QString quality = {};
    QString mediaType = {};
    QString mediaSource = {};
    std::optional<QMarginsF> margins = {}; ///< the application's own, if they still go with the paper; points
};

/// The settings and the page set-up that an application hands in with a call of the portal, and what goes
/// back to it. It multiplies copies, puts pages in order and several on a sheet by itself as it is told here,
/// so what goes back says "once, in order": those are the print server's. A value, from a stranger: what has
/// the wrong type or is out of range is left out alone. Any thread.
class ApplicationSettings {
public:
    ApplicationSettings(const QVariantMap& settings, const QVariantMap& pageSetup);

    /// The keys of what was left out.
    const QStringList& refused() const { return refused_; }

    /// Lets a session start with it; `giver` is what the user calls the application.
    void applyTo(SessionRequest& request, const QString& giver) const;

    /// The margins that the application has set, and the paper that they are for.
    void applyMargins(BlindDocument& document) const;

    /// What goes back: all that came in and was not changed, with what was accepted over it.
    QVariantMap settingsFor(const AcceptedJob& job) const;

    /// The same of the page, complete even if nothing came in.
    QVariantMap pageSetupFor(const AcceptedJob& job) const;

private:
    void takeTexts(const QVariantMap& settings);
    void check(const char* key, const std::function<bool(const QString&)>& isRight);
    void checkTexts();
    void takePageSetup(const QVariantMap& pageSetup);
    void takeMargins(const QVariantMap& pageSetup);

    QString text(const char* key) const { return texts_.value(QLatin1StringView(key)); }

    QSizeF paper() const;

    QMap<QString, QString> texts_;
    QSizeF paper_; ///< millimetres, upright
    QString paperName_;
    std::optional<QMarginsF> margins_; ///< points
    QString pageTurn_;                 ///< the word of the page set-up
    QStringList refused_;
};

} // namespace halvern
