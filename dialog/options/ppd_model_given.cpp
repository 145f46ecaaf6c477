// SPDX-License-Identifier: MIT
// The half of PpdModel that applies saved and typed options, which have to go together in the end only.
#include "dialog/options/ppd_model.h"

#include "platform/printing/cups_ppd.h"

#include <algorithm>
#include <set>

namespace halvern {

struct PpdModel::GivenSet {
    struct Entry {
        Proposal proposal;
        OptionOrigin origin;
        qsizetype order;

        /// Whether it gives way before the other.
        bool isWeaker(const Entry& other) const
        {
            return origin != other.origin ? origin < other.origin : order > other.order;
        }
    };

    QMap<QString, Entry> entries;
    OptionMarks fixed;          ///< what the entries mark
    OptionMarks sides;          ///< what settles them
    OptionMarks changed;        ///< both, those of the entries before the others
    std::set<QString> unlooked; ///< of these, what may clash

    void add(const Entry& entry, const QString& mark)
    {
        const QString& key = entry.proposal.key;
        entries.insert(key, entry);
        fixed.insert(key, mark);
        changed.insert(key, mark);
        unlooked.insert(key);
    }

    void settleWith(const QString& key, const QString& choice)
    {
        sides.insert(key, choice);
        if (!fixed.contains(key))
            changed.insert(key, choice);
        unlooked.insert(key);
    }

    /// Takes an entry out, and what was settled, which is settled anew. The options that are as before.
    QStringList giveUp(const QString& key)
    {
        QStringList reverted = sides.keys() + QStringList{key};
        entries.remove(key);
        fixed.remove(key);
        sides.clear();
        reverted.removeIf([this](const QString& other) { return fixed.contains(other); });
        for (const QString& other : std::as_const(reverted))
            changed.remove(other);
        return reverted;
    }
};

ApplyResult PpdModel::apply(const GivenOptions& given)
{
    ApplyResult result;
    GivenSet set = checkGiven(given, result);
    while (!settleGiven(set, result)) {
    }
    for (auto it = set.sides.cbegin(); it != set.sides.cend(); ++it)
        setMark(it.key(), it.value());
    for (const GivenSet::Entry& entry : set.entries) {
        if (entry.proposal.isListed)
            setMark(entry.proposal.key, entry.proposal.value);
        else
            keep(entry.proposal.key, entry.proposal.value);
    }
    return result;
}

PpdModel::GivenSet PpdModel::checkGiven(const GivenOptions& given, ApplyResult& result) const
{
    GivenSet set;
    QMap<QString, qsizetype> last;
    for (qsizetype i = 0; i < given.size(); ++i) {
        const ppd_option_t* option = ppd_lookup::option(file_.get(), given[i].key);
        last.insert(option ? QString::fromUtf8(option->keyword) : given[i].key, i);
    }
    for (const qsizetype i : last) {
        const Proposal proposal = proposeGiven(given[i]);
        if (proposal.refusal.isEmpty())
            set.add({proposal, given[i].origin, i}, asMark(proposal.key, proposal.value));
        else
            result.leftOut.append({given[i].origin, proposal.refusal});
    }
    return set;
}

// Stricter than what a panel may propose: a slip of the finger must not go into a job unseen.
PpdModel::Proposal PpdModel::proposeGiven(const GivenOption& given) const
{
    if (given.key.isEmpty())
        return {{}, {}, false, tr("An option without a name or a value cannot be set.")};
    Proposal proposal = propose(given.key, given.value, ppd_lookup::NumberReading::whole);
    const QByteArray key = proposal.key.toUtf8();
    if (const ppd_option_t* known = ppd_lookup::option(file_.get(), proposal.key)) {
        const bool isPageSize = proposal.key == QLatin1StringView("PageSize");
        const bool isTaken = proposal.isListed || ppdFindCustomOption(file_.get(), known->keyword) ||
                             areListed(proposal.key, given.value);
        QStringList names;
        for (const ChoiceItem& choice : option(proposal.key).choices)
            names.append(choice.keyword);
        if (isPageSize && !proposal.refusal.isEmpty())
            proposal.refusal += meantSentence(given.value, names);
        else if (!isPageSize && !isTaken && proposal.refusal.isEmpty())
            proposal.refusal = tr("\"%1\" has no choice \"%2\".").arg(proposal.key, given.value) +
                               listSentence(given.value, names);
        return proposal;
    }
    // What a queue has by itself, the server would send all the same. A printer may take free texts for which
    // its PPD has nothing but a default.
    const bool isCarried = given.origin == OptionOrigin::queue || isJobAttribute(given.key) ||
                           ppdFindAttr(file_.get(), (key + "Default").constData(), nullptr);
    if (!isCarried)
        proposal.refusal =
            tr("The printer has no option \"%1\".").arg(given.key) + meantSentence(given.key, keys_);
    return proposal;
}

// Takes one step: true if everything goes together.
bool PpdModel::settleGiven(GivenSet& set, ApplyResult& result) const
{
    const Constraint* clash = nullptr;
    while (!clash && !set.unlooked.empty()) {
        const QString key = *set.unlooked.begin();
        const auto marked = set.changed.constFind(key);
        const auto clashes = marked == set.changed.cend() || marks_.value(key) == *marked
                                 ? std::vector<const Constraint*>()
                                 : constraints_.violatedBy(marksWith(set.changed), key);
        if (clashes.empty())
            set.unlooked.erase(key);
        else
            clash = clashes.front();
    }
    if (clash && !resolveGiven(*clash, set, result))
        leaveWeakestOut(*clash, set, result);
    return !clash;
}

bool PpdModel::resolveGiven(const Constraint& clash, GivenSet& set, ApplyResult& result) const
{
    QStringList given;
    for (const ConstraintSide& side : clash.sides) {
        if (set.entries.contains(side.option))
            given.append(side.option);
    }
    if (given.size() != 1 || clash.resolver.isEmpty() || result.settled.size() > set.entries.size())
        return false;
    const std::optional<OptionMarks> others = resolve(given.front(), set.fixed);
    if (!others)
        return false;
    SettledOption settled{given.front(), value(given.front()), {}};
    for (auto side = others->cbegin(); side != others->cend(); ++side) {
        set.settleWith(side.key(), side.value());
        settled.sideChanges.append(sideChange(side.key(), side.value()));
    }
    result.settled.append(settled);
    return true;
}

void PpdModel::leaveWeakestOut(const Constraint& clash, GivenSet& set, ApplyResult& result) const
{
    QStringList given;
    for (const ConstraintSide& side : clash.sides) {
        if (set.entries.contains(side.option))
            given.append(side.option);
    }
    if (given.isEmpty())
        given = set.entries.keys();
    const QString weakest = *std::ranges::min_element(
        given, [&](const QString& a, const QString& b) { return set.entries[a].isWeaker(set.entries[b]); });
    result.leftOut.append(
        {set.entries[weakest].origin, conflictSentence(weakest, marksWith(set.changed), clash)});
    result.settled.clear();
    // What is as before may clash with what was looked at already.
    for (const QString& key : set.giveUp(weakest)) {
        for (const Constraint* anew : constraints_.violatedBy(marksWith(set.changed), key)) {
            for (const ConstraintSide& side : anew->sides)
                set.unlooked.insert(side.option);
        }
    }
}

} // namespace halvern
