// SPDX-License-Identifier: MIT
#include "dialog/session/change_history.h"

#include "platform/toolkit/user_action.h"

#include <algorithm>

namespace halvern {

ChangeHistory::Effect ChangeHistory::note(const SideChange& change, ChangeOrigin origin,
                                          const QList<SideChange>& others)
{
    if (!isOpen_ || action_ != UserAction::number()) {
        before_.clear();
        chosenBefore_ = chosen_;
        hasToTell_ = false;
        isUsers_ = false;
        isStep_ = false;
        action_ = UserAction::number();
        isOpen_ = true;
    }
    if (origin == ChangeOrigin::user) {
        isUsers_ = true;
        undone_.remove(change.key);
    }
    if (!before_.contains(change.key))
        before_.insert(change.key, change.before);
    if (origin == ChangeOrigin::rule)
        tell(change);
    for (const SideChange& other : others) {
        if (!before_.contains(other.key))
            before_.insert(other.key, other.before);
        tell(other);
    }
    if (hasToTell_) {
        undo_ = before_;
        undoChosen_ = chosenBefore_;
        undoesStep_ = isStep_;
        return Effect::toTell;
    }
    if (!undo_.contains(change.key))
        return Effect::none;
    expire();
    return Effect::expired;
}

void ChangeHistory::expire()
{
    undo_.clear();
    undoesStep_ = false;
}

void ChangeHistory::noteStep(const QMap<QString, QString>& before)
{
    before_ = undo_ = before;
    chosenBefore_ = undoChosen_ = chosen_;
    hasToTell_ = false;
    isUsers_ = isStep_ = undoesStep_ = true;
    action_ = UserAction::number();
    isOpen_ = true;
    undone_.removeIf([&](const auto& value) { return before.contains(value.key()); });
}

void ChangeHistory::tell(const SideChange& change)
{
    told_.removeIf([&](const SideChange& known) { return known.key == change.key; });
    if (change.choice == before_.value(change.key))
        return;
    told_.append(change);
    hasToTell_ = true;
}

ChangeHistory::News ChangeHistory::takeNews()
{
    News news{News::Kind::none, std::exchange(told_, {})};
    endGroup();
    if (news.changes.isEmpty())
        return news;
    const bool wasUndone = std::ranges::all_of(news.changes, [this](const SideChange& change) {
        return undone_.contains(change.key) && undone_.value(change.key) == change.before;
    });
    if (isUsers_) {
        news.kind = News::Kind::users;
    } else if (wasUndone) {
        expire();
        news.kind = News::Kind::correctedAgain;
    } else {
        news.kind = News::Kind::corrected;
    }
    return news;
}

QMap<QString, QString> ChangeHistory::takeUndo()
{
    if (!undo_.isEmpty()) {
        endGroup();
        undone_ = undo_;
    }
    for (auto it = undo_.cbegin(); it != undo_.cend(); ++it) {
        if (undoChosen_.contains(it.key()))
            chosen_.insert(it.key());
        else
            chosen_.remove(it.key());
    }
    undoesStep_ = false;
    return std::exchange(undo_, {});
}

void ChangeHistory::clear()
{
    *this = {};
}

} // namespace halvern
