// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/change_history.h"
#include "dialog/session/paper_keeper.h"

#include <QObject>

namespace halvern {

class PrinterPanels;
class PrintSettings;

/// The selected printer's options as they are changed: by the user in the dialog's own controls, by panels,
/// by what the printer has loaded. Holds model and print settings together, tells the panels what follows,
/// and knows what undoing puts back. Main thread only.
class OptionChanges : public QObject {
    Q_OBJECT

public:
    /// `panels` outlives it.
    explicit OptionChanges(PrinterPanels& panels);
    ~OptionChanges() override;

    /// A printer was selected.
    void take(std::shared_ptr<PpdModel> model);

    /// What it has loaded is known from now on; panels' proposals need that.
    void guard(const PrinterOffer& offer);

    /// None is selected any more.
    void leave();

    /// Null while none is.
    PpdModel* model() const { return model_.get(); }

    /// Null before guard().
    PaperKeeper* keeper() const { return keeper_.get(); }

    const std::shared_ptr<PrintSettings>& settings() const { return settings_; }

    /// The options that the user has chosen since the printer was selected.
    const QSet<QString>& chosen() const { return history_.chosen(); }

    /// What was filled in by panels or by what is loaded, where nobody had chosen anything.
    const QMap<QString, QString>& filledIn() const { return filledIn_; }

    /// Gives the loaded sheet its name, where nobody has chosen one.
    void takeLoadedSheet(const PrinterOffer& offer);

    /// An option has been set by what the dialog was started with.
    void noteStart(const SettledOption& settled);

    /// A choice of the user's in the dialog's own controls. False if it was refused; refused() then says why.
    bool choose(const QString& key, const QVariant& value);

    /// What choose() would change beside the listed choice.
    QList<SideChange> alsoChanges(const QString& key, const QString& choice) const;

    /// Puts the options back to what the printer has by default, as one change that can be undone;
    /// putBackDone() follows. False if it was refused; refused() then says why.
    bool putBack(const QStringList& keys);

    /// Chooses these as one change that can be undone; one that is refused stays out, and refused() says why.
    /// Answers what was changed, and what had to change with it.
    QList<SideChange> chooseTogether(const OptionValues& wanted);

    /// A choice of a user's in a panel's control, or of the panel's rules.
    bool changeByPanel(const QString& key, const QVariant& choice, ChangeOrigin origin);

    /// The answer to a proposal that a panel makes by itself.
    bool takeProposal(const QString& key, const QVariant& choice);

    /// News of what the printer has loaded.
    void takeOffer(const PrinterOffer& offer);

    /// Notes that many options have been set at once, with all values `before`, as one step; `alsoUndo` puts
    /// back what is no option. The panels are told.
    void noteStep(const QMap<QString, QString>& before, std::function<void()> alsoUndo);

    /// What was just done beside the options is the step that undo() takes back, by calling this.
    void noteOther(std::function<void()> undo) { openStep({}, std::move(undo)); }

    /// Whether undo() would take such a step, or many options set at once, back.
    bool undoesStep() const { return history_.undoesStep(); }

    /// Takes the last change that changed other options too back, with those. False if there was none, or one
    /// of them has been changed again.
    bool undo();

Q_SIGNALS:
    /// An option's value has changed.
    void changed();
    void refused(const QString& sentence);
    /// A choice of the user's has changed other options too, by a resolver or by a panel's rules.
    void othersChanged(const QList<halvern::SideChange>& changes);
    /// A panel has corrected what its printer cannot do.
    void corrected(const QList<halvern::SideChange>& changes);
    /// What undo() put back was corrected again at once, and would be every time.
    void undoFailed(const QList<halvern::SideChange>& changes);
    /// undo() would do nothing any more.
    void undoExpired();
    /// Options have been put back to the printer's defaults, and undo() undoes it.
    void putBackDone(const QList<halvern::SideChange>& changes);

private:
    ChangeResult change(const QString& key, const QVariant& value, ppd_lookup::NumberReading reading,
                        ChangeOrigin origin);
    ChangeResult accept(const QString& key, const QString& before, ChangeOrigin origin,
                        const ChangeResult& result);
    void remember(const QString& key, const QString& before, ChangeOrigin origin,
                  const QList<SideChange>& others);
    void dropClashingUndo(const SideChange& change, const QList<SideChange>& others);
    void openStep(const QMap<QString, QString>& before, std::function<void()> alsoUndo);
    void tellChanges();
    void storeInSettings(const QString& key);
    void handBack(const QString& key);

    PrinterPanels& panels_;
    std::shared_ptr<PpdModel> model_;
    std::shared_ptr<PrintSettings> settings_;
    std::unique_ptr<PaperKeeper> keeper_;
    ChangeHistory history_;
    QMap<QString, QString> filledIn_;
    std::function<void()> alsoUndo_; // with the last step
};

} // namespace halvern
