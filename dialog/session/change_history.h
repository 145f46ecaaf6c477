// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/ppd_model.h"

namespace halvern {

enum class ChangeOrigin {
    user,
    rule,    ///< a panel's own rules, or a correction by the dialog
    filling, ///< a panel, where nobody had chosen anything
};

/// Which changes came together, what of them is to be told to the user, and what undoing puts back. Changes
/// belong together that were made in one action of the user's, or without one until endGroup(). Main thread
/// only.
class ChangeHistory {
public:
    enum class Effect {
        none,
        expired, ///< what could be undone has been changed again
        toTell,  ///< there is something to tell, and to undo
    };

    /// Notes a change that was made, with those that a resolver made beside it.
    Effect note(const SideChange& change, ChangeOrigin origin, const QList<SideChange>& others);

    /// Notes many changes of the user's that are one step, with the values before them: it can be undone as a
    /// whole even if nothing else followed. It is open for what follows, until takeNews().
    void noteStep(const QMap<QString, QString>& before);

    /// Whether undoing takes such a step back.
    bool undoesStep() const { return undoesStep_; }

    void endGroup() { isOpen_ = false; }

    /// The options that the user has chosen since the printer was selected. Undoing leaves those of a step as
    /// they were before it.
    const QSet<QString>& chosen() const { return chosen_; }

    /// After the change was noted.
    void choose(const QString& key) { chosen_.insert(key); }

    void unchoose(const QString& key) { chosen_.remove(key); }

    /// The values that undoing would put back.
    const QMap<QString, QString>& undo() const { return undo_; }

    /// Lets nothing be undone.
    void expire();

    /// What changed beside what the user wanted.
    struct News {
        enum class Kind {
            none,
            users,          ///< followed from what the user did
            corrected,      ///< a rule's doing alone
            correctedAgain, ///< the same, and just what was undone: there is nothing to undo, it would come
                            ///< again
        };
        Kind kind = Kind::none;
        QList<SideChange> changes;
    };

    /// The news of the group, which ends. Each change is told once.
    News takeNews();

    /// Values by option, to be put back; empty if there is nothing to undo. Nothing can be undone then.
    QMap<QString, QString> takeUndo();

    void clear();

private:
    void tell(const SideChange& change);

    bool isOpen_ = false;
    bool isUsers_ = false;
    bool hasToTell_ = false;
    bool isStep_ = false;
    bool undoesStep_ = false;
    quint64 action_ = 0;
    QMap<QString, QString> before_;
    QList<SideChange> told_;
    QMap<QString, QString> undo_;
    QSet<QString> chosen_;
    QSet<QString> chosenBefore_;
    QSet<QString> undoChosen_;
    QMap<QString, QString> undone_; // what was put back and has not been changed by the user since
};

} // namespace halvern
