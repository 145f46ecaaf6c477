// SPDX-License-Identifier: MIT
// The quarter of PpdModel that helps a user who chooses: what clashes, and what else would have to change.
#include "dialog/options/ppd_model.h"

#include "dialog/options/conflict_solver.h"
#include "platform/foundation/list_text.h"
#include "platform/printing/cups_ppd.h"

#include <algorithm>

namespace halvern {

namespace {

constexpr char kOwnPages[] = "HalvernDialogExtension";

} // namespace

// What the PPD prefers, then what switches the option off, then the rest as listed.
QStringList PpdModel::choicesToTry(const QString& key) const
{
    const ppd_option_t* option = ppd_lookup::option(file_.get(), key);
    if (!option || isInstallable(key))
        return {};
    const bool hasCustom = ppdFindCustomOption(file_.get(), option->keyword) != nullptr;
    QStringList first;
    QStringList others;
    for (int i = 0; i < option->num_choices; ++i) {
        const QString choice = QString::fromUtf8(option->choices[i].choice);
        if ((hasCustom && choice == QLatin1StringView("Custom")) || !isOfferedWith(key, choice))
            continue;
        if (choice == defaultValue(key))
            first.prepend(choice);
        else if (isOffChoice(choice))
            first.append(choice);
        else
            others.append(choice);
    }
    return first + others;
}

bool PpdModel::isOfferedWith(const QString& key, const QString& choice) const
{
    if (!dependsOnOffer(key))
        return true;
    QMap<QString, QString> choices = values_;
    choices.insert(key, choice);
    return isOffered(offer_, choices, key);
}

std::optional<OptionMarks> PpdModel::settle(const OptionMarks& wanted, const QSet<QString>& chosen) const
{
    const ConflictSolver solver(constraints_, [this](const QString& key) { return choicesToTry(key); });
    return solver.solve({equipment_, marks_, wanted, chosen});
}

// Lets the PPD settle what clashes with `key` without touching any of `fixed`, which has it too.
std::optional<OptionMarks> PpdModel::resolve(const QString& key, const OptionMarks& fixed) const
{
    const ConflictSolver solver(constraints_, [&](const QString& other) {
        return fixed.contains(other) ? QStringList() : choicesToTry(other);
    });
    OptionMarks now = marks_;
    now.insert(fixed);
    return solver.solve({equipment_, now, {{key, fixed.value(key)}}, {}, Means::resolvers});
}

ChangeResult PpdModel::choose(const QString& key, const QVariant& value, const QSet<QString>& chosen)
{
    if (key.isEmpty() || !value.isValid())
        return refuse(tr("An option without a name or a value cannot be set."));
    const Proposal proposal = propose(key, valueText(value), ppd_lookup::NumberReading::whole);
    if (!proposal.refusal.isEmpty())
        return refuse(proposal.refusal);
    if (this->value(proposal.key) == proposal.value && isKept(proposal.key) != proposal.isListed)
        return {true, {}, {}};
    const OptionMarks wanted{{proposal.key, asMark(proposal.key, proposal.value)}};
    const std::optional<OptionMarks> others = settle(wanted, chosen);
    if (!others) {
        const auto clashes = constraints_.violatedBy(marksWith(wanted), proposal.key);
        return refuse(conflictSentence(proposal.key, marksWith(wanted), *clashes.front()));
    }
    ChangeResult result{true, {}, {}};
    for (auto it = others->cbegin(); it != others->cend(); ++it)
        result.sideChanges.append(sideChange(it.key(), it.value()));
    setMark(proposal.key, proposal.value);
    for (const SideChange& side : result.sideChanges)
        setMark(side.key, side.choice);
    return result;
}

void PpdModel::setDefaults(const QMap<QString, QString>& defaults)
{
    defaults_ = defaults;
    changed_.clear();
    for (auto it = values_.cbegin(); it != values_.cend(); ++it) {
        if (*it != defaults_.value(it.key()))
            changed_.insert(it.key());
    }
}

ChangeResult PpdModel::putBack(const QStringList& keys, const QSet<QString>& chosen)
{
    OptionMarks wanted;
    for (const QString& key : keys) {
        if (changed_.contains(key) && (choiceCount(key) > 0 || !defaultValue(key).isEmpty()))
            wanted.insert(key, defaultValue(key));
    }
    OptionMarks marks;
    for (auto it = wanted.cbegin(); it != wanted.cend(); ++it)
        marks.insert(it.key(), asMark(it.key(), *it));
    const std::optional<OptionMarks> others = settle(marks, chosen);
    if (!others)
        return refuse(tr("The printer's own defaults do not go together with what is chosen elsewhere. Put "
                         "the options back one by one."));
    wanted.insert(*others);
    ChangeResult result{true, {}, {}};
    for (auto it = wanted.cbegin(); it != wanted.cend(); ++it)
        result.sideChanges.append(sideChange(it.key(), it.value()));
    restore(wanted);
    return result;
}

QHash<QString, QString> PpdModel::clashes(const QString& key) const
{
    QHash<QString, QString> reasons;
    const ppd_option_t* option = ppd_lookup::option(file_.get(), key);
    const auto standing = constraints_.standingAgainst(marksWith({}), key);
    for (int i = 0; option && i < option->num_choices; ++i) {
        const QString choice = QString::fromUtf8(option->choices[i].choice);
        const auto clash = std::ranges::find_if(
            standing, [&](const Constraint* constraint) { return isRuledOutBy(*constraint, key, choice); });
        if (clash != standing.end())
            reasons.insert(choice, clashText(key, **clash));
        else if (!isOfferedWith(key, choice))
            reasons.insert(choice, tr("not with what the printer has loaded"));
    }
    return reasons;
}

QString PpdModel::clashText(const QString& key, const Constraint& constraint) const
{
    QStringList others;
    for (const ConstraintSide& side : constraint.sides) {
        if (side.option != key)
            others.append(
                tr("%1: %2").arg(optionText(side.option), choiceText(side.option, value(side.option))));
    }
    return tr("not with %1").arg(listText(others));
}

QList<SideChange> PpdModel::alsoChanges(const QString& key, const QString& choice,
                                        const QSet<QString>& chosen) const
{
    QList<SideChange> changes;
    const OptionMarks others = settle({{key, asMark(key, choice)}}, chosen).value_or(OptionMarks());
    for (auto it = others.cbegin(); it != others.cend(); ++it)
        changes.append(sideChange(it.key(), it.value()));
    return changes;
}

bool PpdModel::wouldClash(const QString& key, const QMap<QString, QString>& restored) const
{
    OptionMarks marks;
    for (auto it = restored.cbegin(); it != restored.cend(); ++it)
        marks.insert(it.key(), asMark(it.key(), *it));
    return !constraints_.violatedBy(marksWith(marks), key).empty();
}

QString PpdModel::jobValue(const QString& key) const
{
    const QString now = value(key);
    const bool isCustom = isKept(key) && ppd_lookup::customParameter(file_.get(), key) &&
                          !ppdFindAttr(file_.get(), kOwnPages, nullptr);
    return isCustom ? asMark(key, now) : now;
}

} // namespace halvern
