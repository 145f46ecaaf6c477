// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/page_setup.h"
#include "dialog/session/preset_use.h"
#include "dialog/session/presets.h"

#include <optional>

namespace halvern {

class OptionChanges;
class PrinterChoice;
class PrinterPanels;
struct FetchedPrinter;
struct SessionRequest;

/// What presets do to a session: the one that it starts with, those that the user applies and saves, and what
/// is remembered as used last. Main thread only. What it is given outlives it.
class SessionPresets : public QObject {
    Q_OBJECT

public:
    struct Session {
        const SessionRequest& request;
        PrinterChoice& printer;
        PrinterPanels& panels;
        PageSetup& page;
        OptionChanges& options;
    };

    explicit SessionPresets(const Session& session);

    /// A printer was selected, whose model the options have.
    void take(const FetchedPrinter& printer);

    /// None is selected any more.
    void leave();

    /// What is offered, and which of it is chosen.
    Presets& offered() { return presets_; }

    const Presets& offered() const { return presets_; }

    /// What the printer does by itself: the PPD's choices and the queue's; empty without a printer.
    const QMap<QString, QString>& printerDefaults() const { return printerDefaults_; }

    /// What the session starts with, or starts again with on another printer.
    std::optional<PresetEntry> starting();

    /// Shows that the session has started with it, with what was printed with last or with an instance.
    void chooseStarting(const std::optional<PresetEntry>& used);

    /// Says what of it, of the saved options and of what was typed cannot be had.
    void tellLeftOut(const QList<LeftOut>& leftOut, const QString& presetTitle);

    /// Sets everything as a preset has it, in one step that OptionChanges::undo() takes back. applied()
    /// follows, and a notice() of what cannot be had.
    void apply(const PresetEntry& entry);

    /// What would be kept.
    Preset capture(const PresetContents& contents) const;

    /// Keeps what is set now under a name, in the place of what has it.
    void save(const QString& name, const PresetContents& contents);

    /// Whether everything is set as the chosen preset has it.
    bool isAsChosen() const;

    /// What is set now, as it is remembered as used last; with `contents` also what such a preset leaves out.
    Preset usedNow(const PresetContents& contents = {}) const;

Q_SIGNALS:
    void notice(const QString& sentence);
    void refused(const QString& sentence);
    /// A preset's page is to be set.
    void pageWanted(const halvern::PageSettings& page);
    void applied(const QString& title);

private:
    GivenOptions understoodSaved() const;
    QList<LeftOut> resetTo(const PresetEntry& entry);

    const Session session_;
    Presets presets_;
    QMap<QString, QString> printerDefaults_;
    bool hasTakenNamed_ = false;
};

} // namespace halvern
