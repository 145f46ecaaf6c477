// SPDX-License-Identifier: MIT
// How the dialog's own pages look ahead and go back.
#include "dialog/session/dialog_session.h"

namespace halvern {

QList<SideChange> DialogSession::alsoChanges(const QString& key, const QString& choice) const
{
    return model_ ? model_->alsoChanges(key, choice, history_.chosen()) : QList<SideChange>();
}

bool DialogSession::putBack(const QStringList& keys)
{
    history_.endGroup();
    const QSet<QString> others = history_.chosen() - QSet<QString>(keys.cbegin(), keys.cend());
    const ChangeResult result = model_ ? model_->putBack(keys, others) : ChangeResult();
    if (!result.accepted || result.sideChanges.isEmpty()) {
        if (!result.refusal.isEmpty())
            Q_EMIT refused(result.refusal);
        return result.accepted;
    }
    QMap<QString, QString> before;
    for (const SideChange& change : result.sideChanges) {
        storeInSettings(change.key);
        panels_.tell(change.key, change.choice);
        keeper_->forget(change.key);
        before.insert(change.key, change.before);
    }
    presetStep_.reset();
    history_.noteStep(before);
    for (const SideChange& change : result.sideChanges)
        history_.unchoose(change.key);
    // With what the panels' rules make of it.
    panels_.later([this] { tellChanges(); });
    Q_EMIT optionsPutBack(result.sideChanges);
    Q_EMIT optionsChanged();
    return true;
}

} // namespace halvern
