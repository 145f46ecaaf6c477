// SPDX-License-Identifier: MIT
#include "dialog/session/option_changes.h"

#include "dialog/session/printer_panels.h"
#include "dialog/session/starting_options.h"
#include "platform/printing/print_settings.h"

#include <algorithm>

namespace halvern {

using ppd_lookup::NumberReading;

OptionChanges::OptionChanges(PrinterPanels& panels)
    : panels_(panels), settings_(std::make_shared<PrintSettings>())
{
}

OptionChanges::~OptionChanges() = default;

void OptionChanges::take(std::shared_ptr<PpdModel> model)
{
    model_ = std::move(model);
}

void OptionChanges::guard(const PrinterOffer& offer)
{
    model_->setOffer(offer);
    keeper_ = std::make_unique<PaperKeeper>(*model_, *settings_, offer);
}

void OptionChanges::leave()
{
    keeper_.reset();
    model_.reset();
    // New ones, not emptied ones: no value and no lock of the old printer's is left.
    settings_ = std::make_shared<PrintSettings>();
    history_.clear();
    filledIn_.clear();
    alsoUndo_ = {};
}

void OptionChanges::takeLoadedSheet(const PrinterOffer& offer)
{
    if (const QString sheet = nameLoadedSheet(*model_, offer); !sheet.isEmpty())
        filledIn_.insert(QStringLiteral("PaperName"), sheet);
}

void OptionChanges::noteStart(const SettledOption& settled)
{
    history_.endGroup();
    remember(settled.key, settled.before, ChangeOrigin::user, settled.sideChanges);
}

bool OptionChanges::choose(const QString& key, const QVariant& value)
{
    history_.endGroup();
    if (!model_)
        return false;
    const QString before = model_->value(key);
    if (!accept(key, before, ChangeOrigin::user, model_->choose(key, value, history_.chosen())).accepted)
        return false;
    history_.endGroup();
    panels_.tell(key, model_->value(key));
    return true;
}

QList<SideChange> OptionChanges::alsoChanges(const QString& key, const QString& choice) const
{
    return model_ ? model_->alsoChanges(key, choice, history_.chosen()) : QList<SideChange>();
}

bool OptionChanges::putBack(const QStringList& keys)
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
    openStep(before, {});
    for (const SideChange& change : result.sideChanges)
        history_.unchoose(change.key);
    Q_EMIT putBackDone(result.sideChanges);
    Q_EMIT changed();
    return true;
}

QList<SideChange> OptionChanges::chooseTogether(const OptionValues& wanted)
{
    QList<SideChange> changes;
    QSet<QString> chosen = history_.chosen();
    QSet<QString> refusedKeys;
    history_.endGroup();
    for (const OptionValue& option : wanted) {
        const QString was = model_->value(option.key);
        if (option.value.isEmpty() || option.value == was)
            continue;
        const ChangeResult result = model_->choose(option.key, option.value, chosen);
        if (!result.accepted) {
            Q_EMIT refused(result.refusal);
            refusedKeys.insert(option.key);
            continue;
        }
        chosen.insert(option.key);
        const QString now = model_->value(option.key);
        changes.append(
            {option.key, was, now, model_->optionText(option.key), model_->choiceText(option.key, now)});
        changes.append(result.sideChanges);
    }
    if (changes.isEmpty())
        return changes;
    QMap<QString, QString> before;
    for (const SideChange& change : std::as_const(changes)) {
        storeInSettings(change.key);
        panels_.tell(change.key, model_->value(change.key));
        keeper_->forget(change.key);
        if (!before.contains(change.key))
            before.insert(change.key, change.before);
    }
    openStep(before, {});
    for (const OptionValue& option : wanted) {
        if (!refusedKeys.contains(option.key))
            history_.choose(option.key);
    }
    Q_EMIT changed();
    return changes;
}

// Panels ask at every keystroke.
bool OptionChanges::changeByPanel(const QString& key, const QVariant& choice, ChangeOrigin origin)
{
    return change(key, choice, NumberReading::leading, origin).accepted;
}

// What a panel changes by itself before it knows its papers is nobody's choice.
bool OptionChanges::takeProposal(const QString& key, const QVariant& choice)
{
    const PaperKeeper::Answer answer = keeper_->judge(key, valueText(choice));
    if (answer == PaperKeeper::Answer::refuse) {
        handBack(key);
        return false;
    }
    return changeByPanel(key, choice,
                         answer == PaperKeeper::Answer::fillIn ? ChangeOrigin::filling : ChangeOrigin::rule);
}

// A panel that corrects a choice does not look at the answer: it is told what stays chosen.
void OptionChanges::handBack(const QString& key)
{
    // What it says to that is its last word.
    if (!panels_.isTelling())
        panels_.tell(key, model_->value(key));
}

void OptionChanges::takeOffer(const PrinterOffer& offer)
{
    model_->setOffer(offer);
    const OptionValues overdue = keeper_->takeOffer(offer);
    for (const OptionValue& option : overdue) {
        const ChangeOrigin origin =
            keeper_->isByDefault(option.key) ? ChangeOrigin::filling : ChangeOrigin::rule;
        if (change(option.key, option.value, NumberReading::whole, origin).accepted)
            panels_.tell(option.key, model_->value(option.key));
    }
}

void OptionChanges::noteStep(const QMap<QString, QString>& before, std::function<void()> alsoUndo)
{
    QMap<QString, QString> replaced;
    const QMap<QString, QString> after = model_->values();
    QMap<QString, QString> all = before;
    all.insert(after);
    for (auto it = all.cbegin(); it != all.cend(); ++it) {
        const QString& key = it.key();
        if (before.contains(key) && after.contains(key) && before.value(key) == after.value(key))
            continue;
        replaced.insert(key, before.value(key));
        storeInSettings(key);
        keeper_->forget(key);
        panels_.tell(key, after.value(key));
    }
    openStep(replaced, std::move(alsoUndo));
}

// With what the panels' rules make of it.
void OptionChanges::openStep(const QMap<QString, QString>& before, std::function<void()> alsoUndo)
{
    alsoUndo_ = std::move(alsoUndo);
    history_.noteStep(before);
    panels_.later([this] { tellChanges(); });
}

bool OptionChanges::undo()
{
    const bool isStep = history_.undoesStep();
    const QMap<QString, QString> before = history_.takeUndo();
    if (before.isEmpty() && !isStep)
        return false;
    history_.endGroup();
    if (model_)
        model_->restore(before);
    for (auto it = before.cbegin(); it != before.cend(); ++it) {
        storeInSettings(it.key());
        panels_.tell(it.key(), it.value());
    }
    if (const auto alsoUndo = std::exchange(alsoUndo_, {}); isStep && alsoUndo)
        alsoUndo();
    Q_EMIT changed();
    return true;
}

ChangeResult OptionChanges::change(const QString& key, const QVariant& value, NumberReading reading,
                                   ChangeOrigin origin)
{
    const QString before = model_->value(key);
    return accept(key, before, origin, model_->change(key, value, reading));
}

ChangeResult OptionChanges::accept(const QString& key, const QString& before, ChangeOrigin origin,
                                   const ChangeResult& result)
{
    if (!result.accepted) {
        Q_EMIT refused(result.refusal);
        return result;
    }
    storeInSettings(key);
    for (const SideChange& side : result.sideChanges) {
        storeInSettings(side.key);
        panels_.tell(side.key, side.choice);
    }
    keeper_->forget(key);
    if (origin == ChangeOrigin::filling)
        filledIn_.insert(key, model_->value(key));
    remember(key, before, origin, result.sideChanges);
    if (origin == ChangeOrigin::user)
        history_.choose(key);
    Q_EMIT changed();
    return result;
}

void OptionChanges::remember(const QString& key, const QString& before, ChangeOrigin origin,
                             const QList<SideChange>& others)
{
    const QString now = model_->value(key);
    const SideChange change{key, before, now, model_->optionText(key), model_->choiceText(key, now)};
    const ChangeHistory::Effect effect = history_.note(change, origin, others);
    if (effect == ChangeHistory::Effect::expired)
        Q_EMIT undoExpired();
    else if (effect == ChangeHistory::Effect::none)
        dropClashingUndo(change, others);
    if (effect != ChangeHistory::Effect::toTell)
        return;
    // Together with what else follows from the same cause.
    panels_.later([this] { tellChanges(); });
}

// What was chosen since may go with what is marked now and not with what was before.
void OptionChanges::dropClashingUndo(const SideChange& change, const QList<SideChange>& others)
{
    const QMap<QString, QString>& undo = history_.undo();
    const auto clashes = [&](const SideChange& made) { return model_->wouldClash(made.key, undo); };
    if (undo.isEmpty() || !(clashes(change) || std::ranges::any_of(others, clashes)))
        return;
    history_.expire();
    Q_EMIT undoExpired();
}

void OptionChanges::tellChanges()
{
    const ChangeHistory::News news = history_.takeNews();
    switch (news.kind) {
    case ChangeHistory::News::Kind::none:
        break;
    case ChangeHistory::News::Kind::users:
        Q_EMIT othersChanged(news.changes);
        break;
    case ChangeHistory::News::Kind::corrected:
        Q_EMIT corrected(news.changes);
        break;
    case ChangeHistory::News::Kind::correctedAgain:
        Q_EMIT undoFailed(news.changes);
        break;
    }
}

void OptionChanges::storeInSettings(const QString& key)
{
    settings_->setValue(key, model_->isKept(key) ? QVariant(model_->value(key)) : QVariant(), false);
}

} // namespace halvern
